#include "session/donation_entry.h"

#include <algorithm>
#include <optional>

#include "base/format.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/organization_list.h"
#include "session/fees.h"
#include "session/hints.h"
#include "session/modes.h"
#include "session/options_record.h"
#include "session/totals.h"

namespace benevix {
namespace {

constexpr std::int64_t kCent = Currency::kScale / 100;
constexpr Currency kProofFrom = Currency::FromWhole(1000);

Currency RoundUpToDollars(Currency amount) {
  const std::int64_t rest = amount.Units() % Currency::kScale;
  return rest > 0 ? amount + Currency::FromUnits(Currency::kScale - rest) : amount;
}

// Nothing when the text is not numeric, or its dollars are beyond 32 bits.
std::optional<Currency> ParseAmount(const std::string& text) {
  try {
    const auto number = ParseNumber(text);
    if (!number) return std::nullopt;
    ToInt32(*number);  // raises beyond its range
    return Currency::FromDouble(*number);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

Currency Percent(Currency balance, Currency percentage) {
  return Currency::FromDouble(Product(balance, percentage).ToDouble() / 100);
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
    return;  // beyond 32 bits
  }
  main_.Check1.enabled = values_.Donation >= kProofFrom && values_.Balance >= values_.Donation;
}

void DonationEntry::Enter() {
  const TextBox& box = main_.Text1[money_box::kDonation];
  const auto amount = ParseAmount(box.text);
  if (!box.typed || !amount) return;
  Give(*amount, main_.mnuPercentBal.checked ? Unit::Percent : Unit::Dollars);
}

void DonationEntry::GiveUntyped(Currency amount, bool proof) {
  if (!RequireDonor()) return;
  main_.Check1.enabled = amount >= kProofFrom;
  main_.Check1.value = proof ? 1 : 0;  // a disabled box is cleared when the donation starts
  Give(amount);
}

bool DonationEntry::RequireDonor() {
  return RequireDonorCountry() && RequireDonorName();
}

bool DonationEntry::RequireDonorCountry() {
  const bool known = !others_.contact.Text1[contact_field::kCountry].text.empty();
  if (!known) others_.askForContact();
  return known;
}

bool DonationEntry::RequireDonorName() {
  const bool known =
      main_.Option1[donor_option::kAnonymous].value || !Trim(main_.Combo1.text).empty();
  if (!known) {
    desk_.SetFocus(main_.Combo1);
    ShowHint(main_, hint::kOtherName);
  }
  return known;
}

bool DonationEntry::IsForeignDonor() const {
  return IsForeign(others_.contact.Text1[contact_field::kCountry].text);
}

Currency DonationEntry::ServiceFee() const {
  return ServiceFeeOf(rates_, main_.Option2[delivery_option::kPool].value);
}

Currency DonationEntry::SessionFeeDue() const {
  const bool due = DeductsFees() && values_.TotalDonated == Currency() &&
                   !values_.SessionFeeTaken && others_.payment.Option1[payment::kECheck].value;
  return due ? rates_.SessionFee : Currency();
}

void DonationEntry::Give(Currency amount, Unit unit) {
  const bool withdraws = amount == Currency();
  if (!RequireDonorCountry() || (!withdraws && !RequireDonorName())) return;
  const ListView& list = main_.ListView1;
  if (list.selected == 0 || !list.Text(list.selected).empty()) return;

  // A donation that is refused or overflows leaves the Balance, session fee and fee mode as they
  // were.
  const SessionValues before = values_;
  const bool feeModeEnabled = main_.Option3[fee_option::kAdd].enabled;
  const auto restore = [&] {
    values_.Balance = before.Balance;
    values_.SessionFeeTaken = before.SessionFeeTaken;
    EnableFeeMode(main_, feeModeEnabled);
  };
  Row row;
  try {
    if (const Currency fee = SessionFeeDue(); fee != Currency()) {
      values_.Balance -= fee;
      values_.SessionFeeTaken = true;
    }
    method71(amount);
    if (unit == Unit::Percent) values_.Donation = Percent(values_.Balance, amount);
    values_.CardFee = ComputeCardFee(values_, rates_, IsForeignDonor());
    row = SelectedRow();
    if (IsOverLimit(row, values_.Donation, values_.CardFee)) {
      restore();
      return OfferLargerBudget(row, amount, unit);
    }
    MoveMoney(row);
  } catch (const RuntimeError&) {
    return restore();
  }
  WriteRow(row.number);
  method73(values_, main_, desk_);
  main_.Label8.visible = false;
}

void DonationEntry::method71(Currency amount) {
  if (!main_.Check1.enabled) main_.Check1.value = 0;
  values_.Donation = amount;
  EnableFeeMode(main_, false);
  values_.BvxFee = ServiceFee();
}

DonationEntry::Row DonationEntry::SelectedRow() const {
  const ListView& list = main_.ListView1;
  const auto money = [&](int column) { return Currency::FromText(list.SelectedText(column)); };
  Row row;
  row.number = list.selected;
  row.amount = money(column::kAmount);
  row.fee = money(column::kFee);
  row.cardFee = money(column::kCardFee);
  row.available = row.amount + row.fee + row.cardFee + values_.Balance;
  return row;
}

bool DonationEntry::IsOverLimit(const Row& row, Currency donation, Currency cardFee) const {
  Currency needed = donation;
  if (DeductsFees()) needed += values_.BvxFee;
  if (DeductsCardFee()) needed += cardFee;
  return needed > row.available || donation > row.available;
}

Currency DonationEntry::MissingDollars(const Row& row) const {
  const FeeRates next = NextCardRates(rates_, IsForeignDonor());
  const Currency oldTotal = row.amount + row.fee + row.cardFee;
  const Currency balance = row.available - oldTotal;

  Currency fees;
  if (DeductsFees()) fees += values_.BvxFee;
  if (DeductsCardFee()) fees += CardFeeOf(values_.Donation, values_.BvxFee, next);
  // The server may publish negative fees; they must not raise the limit.
  const Currency missing = values_.Donation + std::max(fees, Currency()) -
                           (DeductsFees() ? row.available : balance + row.amount);
  return RoundUpToDollars(missing);
}

std::optional<Currency> DonationEntry::MissingForPercentage(const Row& row,
                                                            Currency percentage) const {
  const FeeRates next = NextCardRates(rates_, IsForeignDonor());
  const auto fits = [&](std::int32_t dollars) {
    const Currency balance = BalanceForDonation() + Currency::FromWhole(dollars);
    Row raised = row;
    raised.available = row.amount + row.fee + row.cardFee + balance;
    const Currency donation = Percent(balance, percentage);
    return !IsOverLimit(raised, donation, CardFeeOf(donation, values_.BvxFee, next));
  };
  constexpr std::int32_t most = 1 << 30;
  std::int32_t enough = 1;
  while (enough < most && !fits(enough)) enough *= 2;
  if (enough == most) return std::nullopt;
  std::int32_t tooLittle = enough / 2;  // 0 does not fit either, or nobody would have asked
  while (enough - tooLittle > 1) {
    const std::int32_t middle = tooLittle + (enough - tooLittle) / 2;
    (fits(middle) ? enough : tooLittle) = middle;
  }
  return Currency::FromWhole(enough);
}

void DonationEntry::OfferLargerBudget(const Row& row, Currency amount, Unit unit) {
  const std::optional<Currency> increase =
      unit == Unit::Percent ? MissingForPercentage(row, amount) : MissingDollars(row);
  if (!increase) {
    ++main_.Text1[money_box::kDonation].selections;
    return ShowHint(main_, hint::kTypeAmount);
  }
  const BoxAnswer answer = messages_.Show(messages_.Title(message_kind::kInputError),
                                          kMaximumDonationText + MaximumDonation(row).ToText() +
                                              ".   Would you like to adjust the Budget instead?   ",
                                          BoxIcon::Information, BoxButtons::YesNo);
  if (answer != BoxAnswer::Yes) {
    ++main_.Text1[money_box::kDonation].selections;  // the next amount typed replaces this one
    return;
  }
  const Currency newBalance = values_.Balance + *increase;
  values_.Budget += *increase;  // if either sum overflows, neither changes
  values_.Balance = newBalance;
  main_.Text1[money_box::kBudget].Write(Format(values_.Budget, kMoneyPattern));
  // Red although money is left, and .00 if not: the donation must be entered again.
  main_.Text1[money_box::kBalance].Write(Format(values_.Balance, kMoneyPattern));
  main_.Text1[money_box::kBalance].foreColor = colors::kRed;
  main_.Text1[money_box::kDonation].Write("");
  OpenContinue(values_, main_);
}

Currency DonationEntry::MaximumDonation(const Row& row) const {
  if (!DeductsFees()) return std::max(row.available - row.fee - row.cardFee, Currency());
  if (!DeductsCardFee()) return std::max(row.available - values_.BvxFee, Currency());
  return LargestWithCardFee(row.available - values_.BvxFee, values_.BvxFee);
}

Currency DonationEntry::LargestWithin(Currency limit) const {
  if (DeductsFees()) limit -= ServiceFee();
  if (DeductsCardFee()) return LargestWithCardFee(limit, ServiceFee());
  return Currency::FromUnits(std::max<std::int64_t>(limit.Units() / kCent, 0) * kCent);
}

// The fee grows with the donation, so a binary search finds the largest.
Currency DonationEntry::LargestWithCardFee(Currency limit, Currency serviceFee) const {
  const FeeRates next = NextCardRates(rates_, IsForeignDonor());
  std::int64_t fits = 0;
  std::int64_t tooMuch = std::max<std::int64_t>(limit.Units() / kCent, 0) + 1;
  while (tooMuch - fits > 1) {
    const std::int64_t middle = fits + (tooMuch - fits) / 2;
    const Currency donation = Currency::FromUnits(middle * kCent);
    (donation + CardFeeOf(donation, serviceFee, next) <= limit ? fits : tooMuch) = middle;
  }
  return Currency::FromUnits(fits * kCent);
}

// Returns the row's former amount and fees to the Balance and takes the new ones from it.
void DonationEntry::MoveMoney(const Row& row) {
  ListView& list = main_.ListView1;
  Currency balance = values_.Balance + row.amount - values_.Donation;
  const bool donates = values_.Donation != Currency();
  if (DeductsFees()) {
    balance += row.fee;
    if (!donates || DeductsCardFee()) balance += row.cardFee;
    if (donates) balance -= values_.BvxFee;
    if (donates && DeductsCardFee()) balance -= values_.CardFee;
  }
  if (donates && DeductsCardFee()) {
    list.SetSubItem(row.number, column::kCardFee, values_.CardFee.ToText());
  }
  if (!donates) {
    list.cells.erase(row.number);
    ++list.changes;
  }
  values_.Balance = balance;
  // Intended, in both fee modes: a donation that would overdraw the Balance is reduced by one
  // service fee, and the Balance becomes zero.
  if (values_.Balance < Currency()) {
    values_.Donation -= values_.BvxFee;
    values_.Balance = Currency();
  }
}

void DonationEntry::method72(int row) {
  ListView& list = main_.ListView1;
  list.SetSubItem(row, column::kPool,
                  DeliveryText(main_, main_.Option2[delivery_option::kPool].value));
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
