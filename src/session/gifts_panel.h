#pragma once

#include <memory>
#include <vector>

#include "forms/frmBVX.h"
#include "session/list_view_events.h"

namespace benevix {

// The panel "Your gifts": a line for each row of the list with a donation, and below them their sum
// and the fees. All of it is derived from the session; nothing is stored.
class GiftsPanel {
 public:
  GiftsPanel(frmBVX& main, ListViewEvents& listView) : main_(main), listView_(listView) {}

  // The fees are those of the money bar, which comes before.
  void Show();
  // Selects the row of the list, as a click on it does.
  void GiftRows_ItemClick();

 private:
  void ShowRows();
  void ShowSums();

  frmBVX& main_;
  ListViewEvents& listView_;
  std::shared_ptr<const std::vector<int>> given_ = std::make_shared<std::vector<int>>();
  int loads_ = 0, changes_ = 0;  // of the list when the rows were found
};

}  // namespace benevix
