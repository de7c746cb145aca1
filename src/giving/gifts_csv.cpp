#include "giving/gifts_csv.h"

#include <cstdio>

#include "base/text.h"

namespace benevix {
namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

// A text of the code page as a field. A spreadsheet would compute what begins like a formula, so
// such a text gets an apostrophe in front.
void AddText(std::string& line, std::string_view text) {
  constexpr std::string_view formulas = "=+-@\t\r";
  line += ",\"";
  if (!text.empty() && formulas.find(text[0]) != std::string_view::npos) line += '\'';
  for (const char& c : text) {
    if (c == '"') line += '"';
    if (static_cast<unsigned char>(c) < 0x80) {
      line += c;
    } else {
      line += ToUtf8({&c, 1});
    }
  }
  line += '"';
}

void AddAmount(std::string& line, Currency amount) {
  line += ',' + amount.ToText();
}

std::string TimeOf(const GivenSession& session) {
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", session.hour, session.minute);
  return text;
}

}  // namespace

std::string StateText(PaymentState state) {
  switch (state) {
    case PaymentState::Paid:
      return "Paid";
    case PaymentState::Cancelled:
      return "Cancelled";
    case PaymentState::NotKnown:
      break;
  }
  return "Not known";
}

std::string GiftsCsv(const GivenHistory& history, const DayRange& range,
                     const StateOfTransaction& stateOf) {
  std::string csv = kByteOrderMark;
  csv +=
      "Date,Time,Transaction,Organization,Amount,From,Delivery,Proof of mailing,Tax certificate,"
      "Session budget,Session paid,Session service fees,Session card fees,Payment method,State\r\n";
  for (const GivenSession& session : history.Sessions()) {
    if (!range.Has(session.day)) continue;
    const std::string_view transaction = history.Transaction(session);
    std::string begin = IsoDayText(session.day) + ',' + TimeOf(session);
    AddText(begin, transaction);
    std::string end;
    for (const Currency amount :
         {session.budget, session.paid, session.serviceFee, session.cardFee}) {
      AddAmount(end, amount);
    }
    AddText(end, PaymentMethod(transaction));
    AddText(end, StateText(stateOf(transaction)));
    end += "\r\n";
    for (std::uint32_t i = session.firstGift; i < session.firstGift + session.gifts; ++i) {
      const Gift& gift = history.Gifts()[i];
      csv += begin;
      AddText(csv, history.Organizations()[gift.organization]);
      AddAmount(csv, gift.amount);
      AddText(csv, history.DonorOf(gift));
      AddText(csv, history.DeliveryOf(gift));
      csv += gift.proof ? ",yes" : ",no";
      csv += gift.certificate ? ",yes" : ",no";
      csv += end;
    }
  }
  return csv;
}

}  // namespace benevix
