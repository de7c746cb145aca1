#pragma once

#include "controls/controls.h"

namespace benevix {

// The messenger: a message to an organization.
struct frmMail : Window {
  static constexpr const char* kName = "frmMail";

  frmMail() {
    caption = " BVX Messenger";
    Text1[1].multiLine = true;
    Command1[2].enabled = false;
    Note.visible = false;
    // Not Enter: a message that was sent cannot be recalled.
    Command1[0].shortcut = "Ctrl+Return";
    Command1[1].shortcut = kEscapeShortcut;
    Command1[2].shortcut = "Ctrl+P";
  }

  // 0 to 2 name the fields; 3 is the sender's e-mail, 4 the organization's name.
  Label Label1[5] = {Label("From:"), Label("Subject:"), Label("Message")};
  TextBox Text1[2] = {TextBox("What the message is about"), TextBox("The message")};
  Label Note;  // why nothing was sent or printed
  Button Command1[3] = {Button("&Send", "Deliver the message"),
                        Button("&Close", "Close this screen"),
                        Button("&Print", "Print a copy of this message")};
  PictureBox Image1;  // decoration
};

template <class F>
void visit(frmMail& window, F&& f) {
  f("Label1", window.Label1);
  f("Text1", window.Text1);
  f("Note", window.Note);
  f("Command1", window.Command1);
  f("Image1", window.Image1);
}

}  // namespace benevix
