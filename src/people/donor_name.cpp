#include "people/donor_name.h"

#include <algorithm>

#include "base/text.h"
#include "session/hints.h"

namespace benevix {

using namespace donor_option;

void DonorName::Option1_Click(int index) {
  ComboBox& combo = main_.Combo1;
  combo.enabled = index == kMyName || index == kOtherName;
  if (index == kMyName) {
    combo.text = combo.list.empty() ? "" : combo.list[0];
    ShowHint(main_, hint::kMyName);
  } else if (index == kOtherName) {
    combo.text.clear();
    desk_.SetFocus(combo);
    ShowHint(main_, hint::kOtherName);
  } else {
    ShowHint(main_, hint::kAnonymous);
  }
}

void DonorName::Combo1_LostFocus() {
  ComboBox& combo = main_.Combo1;
  if (!main_.Option1[kOtherName].value || Trim(combo.text).empty()) return;
  if (std::find(combo.list.begin(), combo.list.end(), combo.text) != combo.list.end()) return;
  combo.list.push_back(combo.text);
  names_.AppendOtherName(combo.text);
}

void RefuseComma(EventArgs& args) {
  if (args.key == ',') args.key = 0;
}

void SetOwnName(frmBVX& main, const std::string& name) {
  ComboBox& combo = main.Combo1;
  if (combo.list.empty()) combo.list.emplace_back();
  if (!name.empty()) combo.list[0] = name;
  if (main.Option1[kMyName].value) combo.text = combo.list[0];
}

}  // namespace benevix
