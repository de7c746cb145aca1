#pragma once

#include <QApplication>
#include <QTest>

#include "../sample_list.h"
#include "forms/forms.h"
#include "mirror/look/theme.h"
#include "mirror/mirror/mirror.h"

namespace benevix {

// All windows of the program shown at once, with all controls visible and enabled, and with texts
// in the controls that the program would fill.
class EveryWindow {
 public:
  explicit EveryWindow(Scheme scheme) : mirror(scheme, Mirror::Timers::Hold) {
    ApplyTheme(*qApp, scheme);
    forms.ForEach([this](auto& form) { desk.Add(form); });
    mirror.Attach(desk, input);
    input.Enter([this] {
      forms.Get<frmBVX>().ListView1.SetRows(std::make_shared<SampleRows>());
      for (Desk::Entry& entry : desk.Entries()) {
        for (const NamedControl& control : entry.controls) Open(control);
        desk.Show(*entry.window);
      }
    });
    QTest::qWait(0);
  }
  ~EveryWindow() { mirror.Detach(); }
  EveryWindow(const EveryWindow&) = delete;
  EveryWindow& operator=(const EveryWindow&) = delete;

  Forms forms;
  EventTable events;
  Desk desk{events};
  Input input{desk, events};
  Mirror mirror;

 private:
  static void Fill(std::string& text) {
    if (text.empty()) text = "Text";
  }

  static void Open(const NamedControl& control) {
    control.Base().enabled = true;
    if (control.As<MenuItem>() == nullptr) control.Base().visible = true;
    if (auto* const label = control.As<Label>()) Fill(label->caption);
    if (auto* const option = control.As<OptionButton>()) Fill(option->caption);
    if (auto* const box = control.As<TextBox>()) Fill(box->text);
    if (auto* const combo = control.As<ComboBox>()) combo->list = {combo->text = "Text"};
  }
};

}  // namespace benevix
