#include "core/messages.h"

#include "base/format.h"

namespace benevix {
namespace {

const char* KindText(std::uint8_t kind) {
  switch (kind) {
    case 1:
      return "Recoverable Error #0";
    case 2:
      return "Input Error";
    case 3:
      return "Failed to Connect";
    case 4:
      return "Suspicious Error";
    default:
      return "";
  }
}

}  // namespace

void Messages::ShowMessage(std::uint8_t number, std::uint8_t kind, std::string& extra) {
  const std::string text = Text(number, extra);
  if (number == message::kMaximumDonation) extra.clear();
  Show(Title(kind) + extra, text, BoxIcon::Information, BoxButtons::OK);
}

void Messages::ShowMessage(std::uint8_t number, std::uint8_t kind) {
  std::string extra;
  ShowMessage(number, kind, extra);
}

std::string Messages::Title(std::uint8_t kind) const {
  return info_.deployment.product + " - " + KindText(kind);
}

BoxAnswer Messages::Show(const std::string& text, BoxIcon icon, BoxButtons buttons) {
  return Show(info_.deployment.product, text, icon, buttons);
}

BoxAnswer Messages::Show(const std::string& title, const std::string& text, BoxIcon icon,
                         BoxButtons buttons) {
  return boxes_.Show(title, text, icon, buttons);
}

std::string Messages::Text(std::uint8_t number, const std::string& extra) const {
  switch (number) {
    case message::kNoServer:
      return "Server could not be found or there is not an Internet connection ";
    case message::kNoUpdates:
      return "No updates found at this time";
    case message::kUpdateDownloaded:
      return "Update downloaded successfuly";
    case message::kNoWebService:
      return "This organization does not have a web service";
    case message::kAbout:
      return AboutText();
    case message::kServerBusy:
      return "The server may be busy or no Internet connection is present. Please try again later";
    case 9:
      return "Normal operation can be resumed";
    case message::kMailFailed:
      return "Failed to contact mail server. Press Send to retry";
    case message::kServiceUnavailable:
      return "This service is unavailable at this time. Please try again later";
    case message::kNoticeSent:
      return "Notice sent. Thank you";
    case message::kMaximumDonation:
      return kMaximumDonationText + extra + "   ";
    case message::kLocalListNewer:
      return "Your local database seems to be newer than the one at our server and that is not "
             "possible.\r\nWe sugest you to reinstall the software after checking for viruses.\r\n"
             "Select Go to BVX web site from the Help menu to download a clean copy";
    default:
      return "";
  }
}

std::string Messages::AboutText() const {
  return "          Benevix        Version " + std::to_string(info_.major) + "." +
         std::to_string(info_.minor) + "\r\n          Database          Version " +
         FormatSingle(run_.DBVersion, "#.0.##0") + "\r\n\r\nWritten by the Benevix developers\r\n" +
         info_.deployment.copyright + "\r\n\r\nThis program is free to use\r\n";
}

}  // namespace benevix
