#include "giving/statement.h"

#include "base/format.h"
#include "base/text.h"

namespace benevix {
namespace {

// The columns of the gifts: where each begins, and how wide an amount and a name may be. All of it
// fits on A4 and Letter.
constexpr int kNameColumn = 13, kAmountColumn = 54, kTransactionColumn = 69;
constexpr std::size_t kNameWidth = kAmountColumn - kNameColumn - 1;
constexpr std::size_t kAmountWidth = 13;

std::string Padded(std::string text, int column) {
  const auto width = static_cast<std::size_t>(column - 1);
  if (text.size() < width) text.resize(width, ' ');
  return text;
}

std::string RightAligned(const std::string& text) {
  return std::string(text.size() < kAmountWidth ? kAmountWidth - text.size() : 0, ' ') + text;
}

// The beginning of a text that fits into a name's column, cut off it, at a blank where possible.
std::string TakeRow(std::string_view& text) {
  std::size_t size = text.size();
  if (size > kNameWidth) {
    const auto blank = text.rfind(' ', kNameWidth);
    size = blank == std::string_view::npos || blank == 0 ? kNameWidth : blank;
  }
  const std::string row(text.substr(0, size));
  text.remove_prefix(size);
  while (text.starts_with(' ')) text.remove_prefix(1);
  return row;
}

void AddGift(PrintDocument& document, const std::string& day, std::string_view name,
             Currency amount, std::string_view transaction) {
  const std::string sum = RightAligned(Format(amount, kSumPattern));
  std::string line = Padded(Padded(day, kNameColumn) + TakeRow(name), kAmountColumn) + sum;
  if (!transaction.empty()) line += "  " + std::string(transaction);
  document.push_back({line});
  while (!name.empty()) document.push_back({TakeRow(name), kNameColumn});
}

void AddDonor(PrintDocument& document, const frmPersInfo& donor) {
  const auto field = [&](int index) { return std::string(Trim(donor.Text1[index].text)); };
  constexpr int address = 1, city = 2, state = 3, postalCode = 4;
  std::string place = field(city);
  for (const int part : {state, postalCode}) place += (place.empty() ? "" : " ") + field(part);
  for (const std::string& line : {field(contact_field::kFullName), field(address),
                                  std::string(Trim(place)), field(contact_field::kCountry)}) {
    if (!line.empty()) document.push_back({line});
  }
}

}  // namespace

PrintDocument StatementOf(const GivenHistory& history, const DayRange& range,
                          const StateOfTransaction& stateOf, const StatementHead& head) {
  PrintDocument document = {{"Statement of Gifts"}, {}};
  AddDonor(document, head.donor);
  document.push_back({});
  document.push_back({"From " + DayText(range.from) + " to " + DayText(range.to)});
  document.push_back({});
  const std::string heading = Padded(Padded("Date", kNameColumn) + "Organization", kAmountColumn) +
                              RightAligned("Amount $") + "  Transaction";
  const std::string rule(static_cast<std::size_t>(kTransactionColumn + 25), '-');
  document.push_back({heading});
  document.push_back({rule});
  Currency total;
  int gifts = 0;
  bool isOneNotKnown = false;
  for (const GivenSession& session : history.Sessions()) {
    const std::string_view transaction = history.Transaction(session);
    const PaymentState state = stateOf(transaction);
    if (!range.Has(session.day) || state == PaymentState::Cancelled) continue;
    const bool isNotKnown = state == PaymentState::NotKnown;
    for (std::uint32_t i = session.firstGift; i < session.firstGift + session.gifts; ++i) {
      const Gift& gift = history.Gifts()[i];
      AddGift(document, DayText(session.day) + (isNotKnown ? "*" : ""),
              history.Organizations()[gift.organization], gift.amount, transaction);
      total += gift.amount;
      ++gifts;
      isOneNotKnown = isOneNotKnown || isNotKnown;
    }
  }
  document.push_back({rule});
  AddGift(document, "",
          gifts == 1 ? "Total of 1 gift" : "Total of " + std::to_string(gifts) + " gifts", total,
          "");
  document.push_back({});
  if (isOneNotKnown) {
    document.push_back({"* The program does not know whether this gift's session was paid."});
  }
  document.push_back({"Made with " + head.product + " on " + DayText(head.today)});
  return document;
}

}  // namespace benevix
