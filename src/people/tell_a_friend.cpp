#include "people/tell_a_friend.h"

#include "base/runtime_error.h"

namespace benevix {
namespace {

using namespace friend_field;

bool LooksLikeAddress(const std::string& text) {
  return text.find('.') != std::string::npos && text.find('@') != std::string::npos;
}

}  // namespace

void TellAFriend::Form_Load() {
  window_.Text1[kOwnName].Write(Remembered("UsrName"));
  window_.Text1[kOwnMail].Write(Remembered("UsrMail"));
}

std::string TellAFriend::Remembered(const std::string& name) {
  try {
    return codec_.Unscramble(settings_.GetUserString(name));
  } catch (const RuntimeError&) {
    return {};  // typed again
  }
}

void TellAFriend::Command1_Click(int index) {
  if (index == 0) {
    Send();
  } else {
    desk_.Unload(window_);
  }
}

void TellAFriend::Send() {
  if (!LooksLikeAddress(window_.Text1[kFriendMail].text) ||
      !LooksLikeAddress(window_.Text1[kOwnMail].text)) {
    messages_.Show("Please enter a valid e-mail address");
    return;
  }
  settings_.SaveUserString("UsrName", codec_.Scramble(window_.Text1[kOwnName].text));
  settings_.SaveUserString("UsrMail", codec_.Scramble(window_.Text1[kOwnMail].text));
  std::string answer;
  if (const auto contactData = server_.GetContactData()) {
    try {
      answer = server_.OpenURL(Request(contactData->script));
    } catch (const RuntimeError&) {
      // No answer is no thanks.
    }
  }
  if (answer.find("Thank You") == std::string::npos) {
    messages_.ShowMessage(message::kMailFailed, message_kind::kFailedToConnect);
    return;
  }
  messages_.ShowMessage(message::kNoticeSent, message_kind::kNone);
  desk_.Unload(window_);
}

std::string TellAFriend::Request(const std::string& script) const {
  const auto field = [&](int index) { return window_.Text1[index].text; };
  const std::string& base = info_.deployment.serverBase;
  return base + script + "email=" + field(kOwnMail) + "&recipient=" + field(kFriendMail) +
         "&subject=" + field(kFriendName) + " Check this out - Benevix&=Dear " +
         field(kFriendName) +
         " I'm using Benevix for all my charity donations. I believe it will be useful for you "
         "too. You can download it for FREE at " +
         base + "downloads/benevix1.zip \r\nBest Regards, " + field(kOwnName) + " \r\n" +
         field(kOwnMail);
}

}  // namespace benevix
