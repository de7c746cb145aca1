#include "mirror/mirror/drawings.h"

#include <QMainWindow>
#include <functional>
#include <map>
#include <stdexcept>

#include "ui_frmBVX.h"
#include "ui_frmDonRankg.h"
#include "ui_frmInfo.h"
#include "ui_frmMail.h"
#include "ui_frmPayOpt.h"
#include "ui_frmPersInfo.h"
#include "ui_frmPrefsTranslate.h"
#include "ui_frmSplash.h"
#include "ui_frmSrch.h"
#include "ui_frmTellAFriend.h"
#include "ui_frmWait.h"
#include "ui_frmWizard.h"
#include "ui_frmYtdTag.h"

namespace benevix {
namespace {

template <class Drawing, class Widget = QWidget>
std::unique_ptr<QWidget> Make() {
  auto widget = std::make_unique<Widget>();
  Drawing().setupUi(widget.get());
  return widget;
}

}  // namespace

std::unique_ptr<QWidget> MakeDrawing(const std::string& name) {
  static const std::map<std::string, std::function<std::unique_ptr<QWidget>()>> drawings = {
      {"frmBVX", Make<Ui::frmBVX, QMainWindow>},
      {"frmDonRankg", Make<Ui::frmDonRankg>},
      {"frmInfo", Make<Ui::frmInfo>},
      {"frmMail", Make<Ui::frmMail>},
      {"frmPayOpt", Make<Ui::frmPayOpt>},
      {"frmPersInfo", Make<Ui::frmPersInfo>},
      {"frmPrefsTranslate", Make<Ui::frmPrefsTranslate>},
      {"frmSplash", Make<Ui::frmSplash>},
      {"frmSrch", Make<Ui::frmSrch>},
      {"frmTellAFriend", Make<Ui::frmTellAFriend>},
      {"frmWait", Make<Ui::frmWait>},
      {"frmWizard", Make<Ui::frmWizard>},
      {"frmYtdTag", Make<Ui::frmYtdTag>},
  };
  const auto found = drawings.find(name);
  if (found == drawings.end()) throw std::logic_error("no drawing of " + name);
  return found->second();
}

}  // namespace benevix
