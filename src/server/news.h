#pragma once

#include <functional>
#include <string>

#include "core/messages.h"
#include "forms/frmBVX.h"
#include "help/information_viewer.h"
#include "server/server_files.h"

namespace benevix {

// The news line. The server's text is "kind,message", and the kind decides what a click does: 0
// nothing, 1 shows the message, 2 asks whether to download the updater, any other asks whether to
// open the news page. Kind 2 ends in "=" and a version and is shown only if that is a newer one.
class News {
 public:
  News(frmBVX& main, InformationViewer& viewer, ServerFiles& server, Messages& messages,
       const ProgramInfo& info, std::function<void()> downloadUpdater)
      : main_(main),
        viewer_(viewer),
        server_(server),
        messages_(messages),
        info_(info),
        downloadUpdater_(std::move(downloadUpdater)) {}

  void LoadNews();
  void Label12_Click();  // a click on the news

 private:
  void Show(const std::string& news);
  void Hide();
  void MarkAsRead();

  frmBVX& main_;
  InformationViewer& viewer_;
  ServerFiles& server_;
  Messages& messages_;
  const ProgramInfo& info_;
  std::function<void()> downloadUpdater_;
};

}  // namespace benevix
