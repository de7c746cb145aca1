#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "forms/frmInfo.h"
#include "server/server_files.h"

namespace benevix {

// The news line: "kind,message". The kind decides what a click does: 0 nothing, 1 a box, 2 a
// question that leads to the updater, any other a question that leads to the news page.
class News {
 public:
  News(frmBVX& main, frmInfo& info, Desk& desk, ServerFiles& server, Messages& messages,
       const ProgramInfo& program, std::function<void()> downloadUpdater)
      : main_(main),
        info_(info),
        desk_(desk),
        server_(server),
        messages_(messages),
        program_(program),
        downloadUpdater_(std::move(downloadUpdater)) {}

  void LoadNews();
  void Label12_Click();

 private:
  void Show(const std::string& news);
  void Hide();
  void Quiet();
  void ShowNewsPage();

  frmBVX& main_;
  frmInfo& info_;
  Desk& desk_;
  ServerFiles& server_;
  Messages& messages_;
  const ProgramInfo& program_;
  std::function<void()> downloadUpdater_;
};

}  // namespace benevix
