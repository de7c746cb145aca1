#pragma once

#include <cstdint>
#include <string>

#include "core/run_values.h"
#include "platform/message_boxes.h"
#include "platform/program_info.h"

namespace benevix {

// The catalogue of numbered user messages, and message boxes with other texts.
class Messages {
 public:
  Messages(MessageBoxes& boxes, const ProgramInfo& info, const RunValues& run)
      : boxes_(boxes), info_(info), run_(run) {}

  // Shows message `number` with the title of its kind followed by `extra`. Message 13 has `extra`
  // in its text instead and clears it.
  void ShowMessage(std::uint8_t number, std::uint8_t kind, std::string& extra);
  void ShowMessage(std::uint8_t number, std::uint8_t kind);

  // Shows a box with any text; the title is the product name unless one is given.
  BoxAnswer Show(const std::string& text, BoxIcon icon = BoxIcon::None,
                 BoxButtons buttons = BoxButtons::OK);
  BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                 BoxButtons buttons);

  // The title of a message of this kind: the product name and the words of the kind.
  [[nodiscard]] std::string Title(std::uint8_t kind) const;

 private:
  [[nodiscard]] std::string Text(std::uint8_t number, const std::string& extra) const;
  [[nodiscard]] std::string AboutText() const;

  MessageBoxes& boxes_;
  const ProgramInfo& info_;
  const RunValues& run_;
};

// The numbers that the program uses.
namespace message {
inline constexpr std::uint8_t kNoServer = 1;
inline constexpr std::uint8_t kNoUpdates = 2;
inline constexpr std::uint8_t kUpdateDownloaded = 3;
inline constexpr std::uint8_t kNoWebService = 6;
inline constexpr std::uint8_t kAbout = 7;
inline constexpr std::uint8_t kServerBusy = 8;
inline constexpr std::uint8_t kMailFailed = 10;
inline constexpr std::uint8_t kServiceUnavailable = 11;
inline constexpr std::uint8_t kNoticeSent = 12;
inline constexpr std::uint8_t kMaximumDonation = 13;
inline constexpr std::uint8_t kLocalListNewer = 14;
}  // namespace message

// The beginning of message 13 and of the question about raising the Budget; the amount follows.
inline constexpr const char* kMaximumDonationText =
    "With the present options the maximum donation is: $";

namespace message_kind {
inline constexpr std::uint8_t kNone = 0;
inline constexpr std::uint8_t kInputError = 2;
inline constexpr std::uint8_t kFailedToConnect = 3;
}  // namespace message_kind

}  // namespace benevix
