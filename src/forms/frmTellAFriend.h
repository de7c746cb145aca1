#pragma once

#include "controls/controls.h"

namespace benevix {

namespace friend_field {  // Text1
inline constexpr int kFriendName = 0;
inline constexpr int kFriendMail = 1;
inline constexpr int kOwnName = 2;
inline constexpr int kOwnMail = 3;
}  // namespace friend_field

// Sends a friend a recommendation of the program.
struct frmTellAFriend : Window {
  static constexpr const char* kName = "frmTellAFriend";

  frmTellAFriend() {
    caption = " Tell a friend about Benevix";
    Command1[0].shortcut = kEnterShortcut;
    Command1[1].shortcut = kEscapeShortcut;
  }

  Label Label1[4] = {Label("Your Friend's Name"), Label("Friend's E-mail"), Label("Your Name"),
                     Label("Your E-mail")};
  TextBox Text1[4];
  Label MessageTitle{"The message that is sent"};
  Label Message;
  Button Command1[2] = {Button("&Send"), Button("&Cancel")};
};

template <class F>
void visit(frmTellAFriend& window, F&& f) {
  f("Label1", window.Label1);
  f("Text1", window.Text1);
  f("MessageTitle", window.MessageTitle);
  f("Message", window.Message);
  f("Command1", window.Command1);
}

}  // namespace benevix
