#pragma once

#include "controls/controls.h"

namespace benevix {

namespace translate_field {  // Text1
inline constexpr int kMyLanguage = 0;
inline constexpr int kFromLanguage = 1;
inline constexpr int kService = 2;
inline constexpr int kAddressKey = 3;  // precedes the page's address in a request
}  // namespace translate_field

// The languages and the service with which an information page is translated.
struct frmPrefsTranslate : Window {
  static constexpr const char* kName = "frmPrefsTranslate";

  frmPrefsTranslate() {
    caption = " Translation Preferences";
    Command2.shortcut = kEnterShortcut;
    Command1.shortcut = kEscapeShortcut;
    Text1[translate_field::kFromLanguage].text = "en";
  }

  Label Label1[4] = {Label("My Language"), Label("From Language"), Label("Service"),
                     Label("Address Key")};
  TextBox Text1[4];
  Button Command2{"&Translate"};
  Button Command1{"&Close"};
};

template <class F>
void visit(frmPrefsTranslate& window, F&& f) {
  f("Label1", window.Label1);
  f("Text1", window.Text1);
  f("Command2", window.Command2);
  f("Command1", window.Command1);
}

}  // namespace benevix
