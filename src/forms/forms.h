#pragma once

#include <tuple>

#include "forms/frmBVX.h"
#include "forms/frmDonRankg.h"
#include "forms/frmInfo.h"
#include "forms/frmMail.h"
#include "forms/frmPayOpt.h"
#include "forms/frmPersInfo.h"
#include "forms/frmPrefsTranslate.h"
#include "forms/frmReport.h"
#include "forms/frmSplash.h"
#include "forms/frmSrch.h"
#include "forms/frmTellAFriend.h"
#include "forms/frmWait.h"
#include "forms/frmWizard.h"
#include "forms/frmYtdTag.h"

namespace benevix {

// All windows of the program. The desk, the mirror and the tests iterate over this list; the build
// file reads the names of their drawings from the tuple.
class Forms {
 public:
  template <class Form>
  [[nodiscard]] Form& Get() {
    return std::get<Form>(forms_);
  }

  // Calls f(form) for each window, the main window first.
  template <class F>
  void ForEach(F&& f) {
    std::apply([&f](auto&... form) { (f(form), ...); }, forms_);
  }

 private:
  std::tuple<frmBVX, frmSplash, frmPayOpt, frmInfo, frmPersInfo, frmDonRankg, frmWait, frmWizard,
             frmYtdTag, frmMail, frmTellAFriend, frmPrefsTranslate, frmSrch, frmReport>
      forms_;
};

}  // namespace benevix
