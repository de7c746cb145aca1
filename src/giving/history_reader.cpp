#include "giving/history_reader.h"

#include <algorithm>
#include <cstdlib>

namespace benevix {
namespace {

// The pieces of a record's lines; records/session_record writes them.
constexpr std::string_view kHeading = "-- ";
constexpr std::string_view kIndent = "             ";
constexpr std::string_view kOrganization = "Organization: ";
constexpr std::string_view kAmount = " -  Amount: $";
constexpr std::string_view kFrom = " -  From: ";
constexpr std::string_view kDelivery = " -  Method: ";
constexpr std::string_view kProof = " - Send Proof: [X]";
constexpr std::string_view kCertificate = " - Tax Certificate: [X]";
constexpr std::string_view kTransaction = "Transaction ID: ";
constexpr std::string_view kBudget = " - Budget: $";
constexpr std::string_view kPayment = "Payment: $";
constexpr std::string_view kServiceFee = " - BVX Fee: $ ";
constexpr std::string_view kCardFee = " - CC Fee: $";

// Takes the piece off the front (the end) of the text, when it stands there.
bool Take(std::string_view& text, std::string_view piece) {
  if (!text.starts_with(piece)) return false;
  text.remove_prefix(piece.size());
  return true;
}
bool TakeLast(std::string_view& text, std::string_view piece) {
  if (!text.ends_with(piece)) return false;
  text.remove_suffix(piece.size());
  return true;
}

// An amount as the program writes it, "1.5", ".5", "8." or "-.5", read exactly; false for any other
// text.
bool ReadAmount(std::string_view text, Currency& amount) {
  constexpr std::size_t digits = 14, decimals = 4;
  const bool isNegative = !text.empty() && text[0] == '-';
  if (isNegative) text.remove_prefix(1);
  const auto point = std::min(text.find('.'), text.size());
  const std::size_t after = point < text.size() ? text.size() - point - 1 : 0;
  if (text.empty() || point > digits || after > decimals) return false;
  std::int64_t units = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i == point) continue;
    if (text[i] < '0' || text[i] > '9') return false;
    units = units * 10 + (text[i] - '0');
  }
  for (std::size_t i = after; i < decimals; ++i) units *= 10;
  amount = Currency::FromUnits(isNegative ? -units : units);
  return true;
}

// What stands before `mark`, cut off `text` with it; false without it.
bool CutBefore(std::string_view& text, std::string_view mark, std::string_view& before) {
  const auto at = text.find(mark);
  if (at == std::string_view::npos) return false;
  before = text.substr(0, at);
  text.remove_prefix(at + mark.size());
  return true;
}

// The place behind the first `mark` that ends at one of its last letters' places, `at` and what
// `next` makes of each; npos without one. A letter is found much faster than a word.
template <class Next>
std::size_t FindMark(std::string_view line, std::string_view mark, std::size_t at, Next next) {
  const std::size_t behind = mark.back() == ' ' ? 2 : 1;  // a blank may follow the letter
  for (; at != std::string_view::npos; at = next(at)) {
    const std::size_t end = at + behind;
    if (end >= mark.size() && end <= line.size() &&
        line.substr(end - mark.size(), mark.size()) == mark) {
      return end;
    }
  }
  return at;
}

std::optional<GivenSession> ReadHeading(std::string_view line) {
  // "-- MM-DD-YYYY @ hh:mm"
  constexpr std::size_t size = 21;
  if (line.size() != size || line.substr(13, 3) != " @ " || line[18] != ':') return std::nullopt;
  const auto day = ReadDay(line.substr(3, 10));
  const auto digit = [&](std::size_t at) { return line[at] - '0'; };
  for (const std::size_t at : {16U, 17U, 19U, 20U}) {
    if (digit(at) < 0 || digit(at) > 9) return std::nullopt;
  }
  GivenSession session;
  session.hour = digit(16) * 10 + digit(17);
  session.minute = digit(19) * 10 + digit(20);
  if (!day || session.hour > 23 || session.minute > 59) return std::nullopt;
  session.day = *day;
  return session;
}

// The texts of a gift's line.
struct GiftTexts {
  std::string_view name, from, delivery;
  Currency amount;
  bool proof = false, certificate = false;

  // False for a line, without its indent, that is no gift.
  bool Read(std::string_view line);
};

bool GiftTexts::Read(std::string_view line) {
  if (!Take(line, kOrganization)) return false;
  certificate = TakeLast(line, kCertificate);
  proof = TakeLast(line, kProof);
  // A name or a donor may hold the marks themselves: the delivery is the last text, and the first
  // amount that is one and stands before a donor is the gift's.
  const auto mark = FindMark(line, kDelivery, line.rfind(':'), [&](std::size_t at) {
    return at == 0 ? std::string_view::npos : line.rfind(':', at - 1);
  });
  if (mark == std::string_view::npos) return false;
  delivery = line.substr(mark);
  line = line.substr(0, mark - kDelivery.size());
  const auto next = [&](std::size_t at) { return line.find('$', at + 1); };
  for (auto at = FindMark(line, kAmount, line.find('$'), next); at != std::string_view::npos;
       at = FindMark(line, kAmount, line.find('$', at), next)) {
    name = line.substr(0, at - kAmount.size());
    from = line.substr(at);
    const std::string_view amountText = from.substr(0, from.find(' '));
    from.remove_prefix(amountText.size());
    if (Take(from, kFrom) && ReadAmount(amountText, amount)) return true;
  }
  return false;
}

}  // namespace

void HistoryReader::Read(std::string_view line) {
  TakeLast(line, "\r");
  if (!ReadLine(line)) ++unread;
}

bool HistoryReader::ReadLine(std::string_view line) {
  if (line.starts_with(kHeading)) return ReadHeadingLine(line);
  if (line.empty()) {
    isOpen_ = false;
    return true;
  }
  if (!isOpen_ || !Take(line, kIndent) || line.empty()) return false;
  return line[0] == 'O'   ? ReadGift(line)
         : line[0] == 'T' ? ReadTransaction(line)
                          : ReadPayment(line);
}

bool HistoryReader::ReadHeadingLine(std::string_view line) {
  const auto session = ReadHeading(line);
  isOpen_ = session.has_value();
  if (!isOpen_) return false;
  sessions.push_back(*session);
  sessions.back().firstGift = static_cast<std::uint32_t>(gifts.size());
  return true;
}

bool HistoryReader::ReadGift(std::string_view line) {
  GiftTexts texts;
  if (!texts.Read(line) || texts.amount < Currency() || !Count(texts.amount)) return false;
  gifts.push_back({texts.amount, organizations.Of(texts.name), donors.Of(texts.from),
                   deliveries.Of(texts.delivery), texts.proof, texts.certificate});
  GivenSession& session = sessions.back();
  session.given += texts.amount;
  ++session.gifts;
  return true;
}

bool HistoryReader::ReadTransaction(std::string_view line) {
  GivenSession& session = sessions.back();
  std::string_view id;
  if (session.transactionSize != 0 || !Take(line, kTransaction) || !CutBefore(line, kBudget, id) ||
      !ReadAmount(line, session.budget)) {
    return false;
  }
  session.transaction = static_cast<std::uint32_t>(transactions.size());
  session.transactionSize = static_cast<std::uint32_t>(id.size());
  transactions += id;
  return true;
}

bool HistoryReader::ReadPayment(std::string_view line) {
  GivenSession& session = sessions.back();
  std::string_view paid, serviceFee;
  GivenSession read;
  if (session.hasPayment || !Take(line, kPayment) || !CutBefore(line, kServiceFee, paid) ||
      !CutBefore(line, kCardFee, serviceFee) || !ReadAmount(paid, read.paid) ||
      !ReadAmount(serviceFee, read.serviceFee) || !ReadAmount(line, read.cardFee)) {
    return false;
  }
  for (const Currency amount : {read.paid, read.serviceFee, read.cardFee}) {
    if (!Count(amount)) return false;
  }
  session.paid = read.paid;
  session.serviceFee = read.serviceFee;
  session.cardFee = read.cardFee;
  session.hasPayment = true;
  return true;
}

bool HistoryReader::Count(Currency amount) {
  constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max() / 2;
  const std::int64_t units = std::abs(amount.Units());
  if (units > most - sum_) return false;
  sum_ += units;
  return true;
}

}  // namespace benevix
