#pragma once

#include <cstdint>
#include <string>

#include "core/run_values.h"
#include "platform/message_boxes.h"
#include "platform/program_info.h"

namespace benevix {

// The catalogue of numbered user messages, and the boxes that stand outside it.
class Messages {
 public:
  Messages(MessageBoxes& boxes, const ProgramInfo& info, const RunValues& run)
      : boxes_(boxes), info_(info), run_(run) {}

  // Shows message `number` with the title word of `kind` and the extra text. Number 13 puts the
  // extra text into the message and clears it.
  void ShowMessage(std::uint8_t number, std::uint8_t kind, std::string& extra);
  void ShowMessage(std::uint8_t number, std::uint8_t kind);

  // A box outside the catalogue, titled with the product name unless a title is given.
  BoxAnswer Show(const std::string& text, BoxIcon icon = BoxIcon::None,
                 BoxButtons buttons = BoxButtons::OK);
  BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                 BoxButtons buttons);

  // The title of a message of this kind: the product's name and the kind's word.
  [[nodiscard]] std::string Title(std::uint8_t kind) const;

 private:
  [[nodiscard]] std::string Text(std::uint8_t number, const std::string& extra) const;
  [[nodiscard]] std::string AboutText() const;

  MessageBoxes& boxes_;
  const ProgramInfo& info_;
  const RunValues& run_;
};

// The numbers and kinds that the program uses.
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

// How message 13 begins, and the question that is asked in its place; the amount follows.
inline constexpr const char* kMaximumDonationText =
    "With the present options the maximum donation is: $";

namespace message_kind {
inline constexpr std::uint8_t kNone = 0;
inline constexpr std::uint8_t kInputError = 2;
inline constexpr std::uint8_t kFailedToConnect = 3;
}  // namespace message_kind

}  // namespace benevix
