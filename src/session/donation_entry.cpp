#include "session/donation_entry.h"

#include <algorithm>
#include <optional>

#include "base/format.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"
#include "session/fees.h"
#include "session/modes.h"
#include "session/options_record.h"
#include "session/totals.h"

namespace benevix {
namespace {

constexpr std::int64_t kCent = Currency::kScale / 100;

// Rounded up to whole dollars.
Currency WholeDollars(Currency amount) {
  const std::int64_t rest = amount.Units() % Currency::kScale;
  return rest > 0 ? amount + Currency::FromUnits(Currency::kScale - rest) : amount;
}

// Nothing when the text is not numeric, or its dollars are beyond 32 bits.
std::optional<Currency> AmountIn(const std::string& text) {
  try {
    const auto number = ParseNumber(text);
    if (!number) return std::nullopt;
    ToInt32(*number);  // raises beyond its range
    return Currency::FromDouble(*number);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::string DeliveryText(const frmBVX& main) {
  if (!main.Option2[delivery_option::kPool].value)
    return main.Option2[delivery_option::kStandAlone].caption;
  const std::string& caption = main.Option2[delivery_option::kPool].caption;
  return caption.substr(caption.find(' ') + 1);
}

std::string FromText(const frmBVX& main) {
  return main.Option1[donor_option::kAnonymous].value
             ? main.Option1[donor_option::kAnonymous].caption
             : main.Combo1.text;
}

}  // namespace

void DonationEntry::Text1_Change() {
  try {
    if (const auto typed = ParseNumber(main_.Text1[money_box::kDonation].text)) {
      values_.Donation = Currency::FromWhole(ToInt32(*typed));
    }
  } catch (const RuntimeError&) {
    return;  // beyond a whole number
  }
  main_.Check1.enabled =
      values_.Donation >= Currency::FromWhole(1000) && values_.Balance >= values_.Donation;
}

void DonationEntry::Enter() {
  const TextBox& box = main_.Text1[money_box::kDonation];
  const auto amount = AmountIn(box.text);
  if (!box.typed || !amount) return;
  Give(*amount, main_.mnuPercentBal.checked ? Unit::Percent : Unit::Dollars);
}

void DonationEntry::Give(Currency amount) {
  Give(amount, Unit::Dollars);
}

bool DonationEntry::KnowsDonor() {
  const bool known = !others_.contact.Text1[contact_field::kCountry].text.empty();
  if (!known) others_.askForContact();
  return known;
}

bool DonationEntry::IsForeignDonor() const {
  return IsForeign(others_.contact.Text1[contact_field::kCountry].text);
}

Currency DonationEntry::ServiceFee() const {
  return Currency::FromWhole(main_.Option2[delivery_option::kPool].value ? rates_.PoolFee
                                                                         : rates_.StandAloneFee);
}

// The charge for e-checks is taken with the first donation of a session.
bool DonationEntry::TakesSessionFee() const {
  return Deducts() && values_.TotalDonated == Currency() && !values_.SessionFeeTaken &&
         others_.payment.Option1[payment::kECheck].value;
}

void DonationEntry::Give(Currency amount, Unit unit) {
  if (!KnowsDonor()) return;
  const ListView& list = main_.ListView1;
  if (list.selected == 0 || !list.Text(list.selected).empty()) return;

  // A donation that is refused, or whose numbers overflow, leaves the session as it was.
  const SessionValues before = values_;
  const bool feeModeOpen = main_.Option3[fee_option::kAdd].enabled;
  const auto restore = [&] {
    values_.Balance = before.Balance;
    values_.SessionFeeTaken = before.SessionFeeTaken;
    EnableFeeMode(main_, feeModeOpen);
  };
  Row row;
  try {
    if (TakesSessionFee()) {
      values_.Balance -= rates_.SessionFee;
      values_.SessionFeeTaken = true;
    }
    method71(amount);
    if (unit == Unit::Percent) {
      values_.Donation =
          Currency::FromDouble(Product(values_.Balance, values_.Donation).ToDouble() / 100);
    }
    values_.CardFee = ComputeCardFee(values_, rates_, IsForeignDonor());
    row = SelectedRow();
    if (IsOverLimit(row)) {
      restore();
      return OverLimit(row);
    }
    MoveMoney(row);
  } catch (const RuntimeError&) {
    return restore();
  }
  WriteRow(row.number);
  method73(values_, main_, desk_);
  main_.Label8.visible = false;
}

// Reads the donation and fixes the service fee of this entry.
void DonationEntry::method71(Currency amount) {
  if (!main_.Check1.enabled) main_.Check1.value = 0;
  values_.Donation = amount;
  EnableFeeMode(main_, false);
  values_.BvxFee = ServiceFee();
}

DonationEntry::Row DonationEntry::SelectedRow() const {
  const ListView& list = main_.ListView1;
  const auto money = [&](int column) {
    return Currency::FromText(list.SubItem(list.selected, column));
  };
  Row row;
  row.number = list.selected;
  row.amount = money(column::kAmount);
  row.fee = money(column::kFee);
  row.cardFee = money(column::kCardFee);
  row.available = row.amount + row.fee + row.cardFee + values_.Balance;
  return row;
}

bool DonationEntry::IsOverLimit(const Row& row) const {
  Currency needed = values_.Donation;
  if (Deducts()) needed += values_.BvxFee;
  if (DeductsCardFee()) needed += values_.CardFee;
  return needed > row.available || values_.Donation > row.available;
}

void DonationEntry::OverLimit(const Row& row) {
  const FeeRates next = NextCardRates(rates_, IsForeignDonor());
  const Currency oldTotal = row.amount + row.fee + row.cardFee;
  const Currency balance = row.available - oldTotal;

  Currency fees;
  if (Deducts()) fees += values_.BvxFee;
  if (DeductsCardFee()) fees += CardFeeOf(values_.Donation, values_.BvxFee, next);
  // Fees below zero, as a server may publish them, do not raise what may be given.
  const Currency lacks = values_.Donation + std::max(fees, Currency()) -
                         (Deducts() ? row.available : balance + row.amount);

  const BoxAnswer answer = messages_.Show(messages_.Title(message_kind::kInputError),
                                          kMaximumDonationText + Maximum(row).ToText() +
                                              ".   Would you like to adjust the Budget instead?   ",
                                          BoxIcon::Information, BoxButtons::YesNo);
  if (answer != BoxAnswer::Yes) {
    ++main_.Text1[money_box::kDonation].selections;  // the next amount replaces the refused one
    return;
  }
  const Currency rise = WholeDollars(lacks);
  const Currency raised = values_.Balance + rise;
  values_.Budget += rise;  // both or, when one overflows, none
  values_.Balance = raised;
  main_.Text1[money_box::kBudget].Write(Format(values_.Budget, kMoneyPattern));
  main_.Text1[money_box::kBalance].Write(Format(values_.Balance, kMoneyPattern));
  main_.Text1[money_box::kBalance].foreColor = colors::kRed;
  main_.Text1[money_box::kDonation].Write("");
}

Currency DonationEntry::Maximum(const Row& row) const {
  if (!Deducts()) return std::max(row.available - row.fee - row.cardFee, Currency());
  if (!DeductsCardFee()) return std::max(row.available - values_.BvxFee, Currency());
  return LargestWithCardFee(row.available - values_.BvxFee, values_.BvxFee);
}

Currency DonationEntry::LargestWithin(Currency room) const {
  if (TakesSessionFee()) room -= rates_.SessionFee;
  if (Deducts()) room -= ServiceFee();
  if (DeductsCardFee()) return LargestWithCardFee(room, ServiceFee());
  return Currency::FromUnits(std::max<std::int64_t>(room.Units() / kCent, 0) * kCent);
}

// The fee grows with the donation, so a binary search finds the largest.
Currency DonationEntry::LargestWithCardFee(Currency left, Currency serviceFee) const {
  const FeeRates next = NextCardRates(rates_, IsForeignDonor());
  std::int64_t fits = 0;
  std::int64_t tooMuch = std::max<std::int64_t>(left.Units() / kCent, 0) + 1;
  while (tooMuch - fits > 1) {
    const std::int64_t middle = fits + (tooMuch - fits) / 2;
    const Currency donation = Currency::FromUnits(middle * kCent);
    (donation + CardFeeOf(donation, serviceFee, next) <= left ? fits : tooMuch) = middle;
  }
  return Currency::FromUnits(fits * kCent);
}

// The former amount and fees come back to the Balance, the new ones leave it.
void DonationEntry::MoveMoney(const Row& row) {
  ListView& list = main_.ListView1;
  Currency balance = values_.Balance + row.amount - values_.Donation;
  const bool gives = values_.Donation != Currency();
  if (Deducts()) {
    balance += row.fee;
    if (!gives || DeductsCardFee()) balance += row.cardFee;
    if (gives) balance -= values_.BvxFee;
    if (gives && DeductsCardFee()) balance -= values_.CardFee;
  }
  if (gives && Deducts()) {
    list.SetSubItem(row.number, column::kFee, values_.BvxFee.ToText());
    if (DeductsCardFee()) {
      list.SetSubItem(row.number, column::kCardFee, values_.CardFee.ToText());
    }
  }
  if (!gives) {
    list.cells.erase(row.number);
    ++list.changes;
  }
  values_.Balance = balance;
  // Meant so, in both fee modes: what would overdraw the Balance is given less one service fee, and
  // the Balance is then used up.
  if (values_.Balance < Currency()) {
    values_.Donation -= values_.BvxFee;
    values_.Balance = Currency();
  }
}

// Writes delivery, donor, fee and amount into the row.
void DonationEntry::method72(int row) {
  ListView& list = main_.ListView1;
  list.SetSubItem(row, column::kPool, DeliveryText(main_));
  list.SetSubItem(row, column::kFrom, FromText(main_));
  list.SetSubItem(row, column::kFee, values_.BvxFee.ToText());
  list.SetSubItem(row, column::kAmount, Format(values_.Donation, kAmountPattern));
}

void DonationEntry::WriteRow(int row) {
  ListView& list = main_.ListView1;
  if (values_.Donation != Currency()) {
    method72(row);
    const OptionsRecord record{.organization = list.SubItem(row, column::kId),
                               .amount = list.SubItem(row, column::kAmount),
                               .delivery = list.SubItem(row, column::kPool),
                               .from = list.SubItem(row, column::kFrom),
                               .certificate = std::to_string(main_.Check2.value),
                               .proof = std::to_string(main_.Check1.value)};
    list.SetSubItem(row, column::kRecord, record.ToText());
  }
  main_.Text1[money_box::kDonation].Write("");
  RecalcTotalDonated(values_, list);
}

}  // namespace benevix
