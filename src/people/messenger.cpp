#include "people/messenger.h"

#include "database/organization_list.h"
#include "server/mail_notice.h"

namespace benevix {
namespace {

constexpr int kSend = 0;
constexpr int kClose = 1;
constexpr int kPrint = 2;
constexpr int kSubject = 0;       // of Text1
constexpr int kMessage = 1;       // of Text1
constexpr int kSender = 3;        // of Label1
constexpr int kOrganization = 4;  // of Label1

}  // namespace

void Messenger::WriteTo(const std::string& recipient) {
  window_.Command1[kSend].tag = recipient;
  const auto& details = others_.contact.Text1;
  if (details[contact_field::kEMail].text.empty() ||
      details[contact_field::kFullName].text.empty()) {
    return others_.askForContact();
  }
  Show();
}

void Messenger::Show() {
  desk_.Show(window_, Modality::Modeless, Attention::KeepsMainDisabled);
  desk_.SetFocus(window_.Text1[kSubject]);
}

void Messenger::Form_Load() {
  const ListView& list = others_.main.ListView1;
  window_.caption = info_.deployment.product + " Mail ";
  window_.Label1[kSender].caption = others_.contact.Text1[contact_field::kEMail].text;
  window_.Label1[kOrganization].caption = list.SelectedText(column::kOrganization);
  window_.Label1[kOrganization].tag = list.SelectedText(column::kId);
  const auto draft = drafts_.find(window_.Label1[kOrganization].tag);
  if (draft == drafts_.end()) return;
  window_.Text1[kSubject].Write(draft->second.subject);
  window_.Text1[kMessage].Write(draft->second.message);
}

void Messenger::Command1_Click(int index) {
  ShowNote("");
  switch (index) {
    case kSend:
      return Send();
    case kClose:
      return Close();
    case kPrint:
      return Print();
    default:
      return;
  }
}

void Messenger::Send() {
  const std::string recipient = window_.Command1[kSend].tag;
  if (recipient.empty()) {
    messages_.ShowMessage(message::kServiceUnavailable, message_kind::kFailedToConnect);
    return KeepDraft(true);
  }
  if (window_.Text1[kMessage].text.find_first_not_of(" \t\r\n") == std::string::npos) {
    ShowNote("Please write a message first");
    return desk_.SetFocus(window_.Text1[kMessage]);
  }
  window_.mousePointer = MousePointer::Hourglass;
  const MailResult result =
      SendMailNotice(server_,
                     {window_.Label1[kSender].caption, recipient, window_.Text1[kSubject].text,
                      window_.Text1[kMessage].text +
                          ".\r\n This message was sent courtesy of Benevix " + server_.Base()})
          .result;
  switch (result) {
    case MailResult::NoScript:
      messages_.ShowMessage(message::kServiceUnavailable, message_kind::kFailedToConnect);
      break;
    case MailResult::Sent:
      messages_.ShowMessage(message::kNoticeSent, message_kind::kNone);
      window_.Command1[kPrint].enabled = true;
      break;
    case MailResult::NotSent:
      messages_.ShowMessage(message::kMailFailed, message_kind::kFailedToConnect);
      break;
  }
  window_.mousePointer = MousePointer::Default;
  KeepDraft(result != MailResult::Sent);
  // Intended, although the message offers a retry.
  if (result == MailResult::NotSent) Close();
}

void Messenger::KeepDraft(bool keep) {
  const std::string& organization = window_.Label1[kOrganization].tag;
  if (keep) {
    drafts_[organization] = {window_.Text1[kSubject].text, window_.Text1[kMessage].text};
  } else {
    drafts_.erase(organization);
  }
}

void Messenger::Print() {
  ShowNote(others_.print(window_.Label1[kSender].caption, window_.Label1[kOrganization].caption,
                         window_.Text1[kSubject].text, window_.Text1[kMessage].text));
}

void Messenger::ShowNote(const std::string& note) {
  window_.Note.caption = note;
  window_.Note.visible = !note.empty();
}

void Messenger::Close() {
  desk_.Unload(window_);
}

}  // namespace benevix
