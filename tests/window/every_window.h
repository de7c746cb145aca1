#pragma once

#include <QApplication>
#include <QTest>
#include <string>
#include <vector>

#include "program/program.h"
#include "window/mirror.h"
#include "window/theme.h"

namespace benevix {

// All windows of the program on the screen at once, with texts where the program would write some.
class EveryWindow {
 public:
  explicit EveryWindow(Scheme scheme) : mirror_(scheme, Mirror::Timers::Hold) {
    ApplyTheme(*qApp, scheme);
    Add("frmBVX", windows.main);
    Add("frmSplash", windows.splash);
    Add("frmPayOpt", windows.payment);
    Add("frmInfo", windows.info);
    Add("frmPersInfo", windows.contact);
    Add("frmDonRankg", windows.ranking);
    Add("frmWait", windows.wait);
    Add("frmWizard", windows.wizard);
    Add("frmYtdTag", windows.ytd);
    Add("frmMail", windows.mail);
    Add("frmTellAFriend", windows.tellAFriend);
    Add("frmPrefsTranslate", windows.translate);
    Add("frmSrch", windows.search);
    mirror_.Attach(desk, input);
    input.Enter([this] {
      for (Window* const window : all_) {
        for (const NamedControl& control : desk.Find(*window).controls) Fill(control);
        desk.Show(*window);
      }
    });
    QTest::qWait(0);
  }
  ~EveryWindow() { mirror_.Detach(); }
  EveryWindow(const EveryWindow&) = delete;
  EveryWindow& operator=(const EveryWindow&) = delete;

  [[nodiscard]] const std::vector<Window*>& All() const { return all_; }
  [[nodiscard]] const std::string& NameOf(const Window& window) { return desk.Find(window).name; }
  [[nodiscard]] QWidget& WidgetOf(const Window& window) {
    return mirror_.BindingOf(window)->Widget();
  }

  Windows windows;
  EventTable events;
  Desk desk{events};
  Input input{desk, events};

 private:
  template <class W>
  void Add(const char* name, W& window) {
    desk.Add(name, window);
    all_.push_back(&window);
  }

  static void Fill(const NamedControl& control) {
    if (auto* const label = control.As<Label>()) {
      if (label->caption.empty()) label->caption = "Text";
    }
    if (auto* const option = control.As<OptionButton>()) {
      if (option->caption.empty()) option->caption = "Text";
    }
    if (auto* const box = control.As<TextBox>()) box->text = "Text";
    if (auto* const combo = control.As<ComboBox>()) combo->list = {combo->text = "Text"};
  }

  std::vector<Window*> all_;
  Mirror mirror_;
};

}  // namespace benevix
