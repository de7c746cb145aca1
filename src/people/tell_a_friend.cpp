#include "people/tell_a_friend.h"

#include "base/runtime_error.h"
#include "server/mail_notice.h"

namespace benevix {
namespace {

using namespace friend_field;

bool LooksLikeAddress(const std::string& text) {
  return text.find('.') != std::string::npos && text.find('@') != std::string::npos;
}

}  // namespace

void TellAFriend::Form_Load() {
  const auto fill = [&](int field, const std::string& name, int donorsField) {
    const std::string stored = StoredText(name);
    window_.Text1[field].Write(stored.empty() ? donor_.Text1[donorsField].text : stored);
  };
  fill(kOwnName, "UsrName", contact_field::kFullName);
  fill(kOwnMail, "UsrMail", contact_field::kEMail);
}

void TellAFriend::ShowMessage() {
  if (desk_.IsShown(window_)) window_.Message.caption = Body();
}

std::string TellAFriend::Body() const {
  const auto field = [&](int index) { return window_.Text1[index].text; };
  return "Dear " + field(kFriendName) +
         " I'm using Benevix for all my charity donations. I believe it will be useful for you "
         "too. You can download it for FREE at " +
         server_.Base() + "downloads/benevix1.zip \r\nBest Regards, " + field(kOwnName) + " \r\n" +
         field(kOwnMail);
}

std::string TellAFriend::StoredText(const std::string& name) {
  try {
    return codec_.Unscramble(settings_.GetUserString(name));
  } catch (const RuntimeError&) {
    return {};  // the user types it again
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
  const auto field = [&](int index) { return window_.Text1[index].text; };
  const MailOutcome outcome =
      SendMailNotice(server_, {field(kOwnMail), field(kFriendMail),
                               field(kFriendName) + " Check this out - Benevix", Body()});
  if (outcome.result != MailResult::Sent) {
    messages_.ShowMessage(message::kMailFailed, message_kind::kFailedToConnect);
    return;
  }
  messages_.ShowMessage(message::kNoticeSent, message_kind::kNone);
  desk_.Unload(window_);
}

}  // namespace benevix
