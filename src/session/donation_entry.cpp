#include "session/donation_entry.h"

#include <algorithm>

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
#include "session/typed_amount.h"

namespace benevix {
namespace {

constexpr std::int64_t kCent = Currency::kScale / 100;
constexpr Currency kProofFrom = Currency::FromWhole(1000);

// A comma divides the fields of the record, and a name stored by an earlier version may have one.
std::string WithoutCommas(std::string name) {
  for (std::size_t at = 0; (at = name.find(',', at)) != std::string::npos;) {
    name.replace(at, 1, name.substr(at + 1, 1) == " " ? "" : " ");
  }
  return name;
}

std::string FromText(const frmBVX& main) {
  return main.Option1[donor_option::kAnonymous].value
             ? main.Option1[donor_option::kAnonymous].caption
             : WithoutCommas(main.Combo1.text);
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

DonationEntry::Unit DonationEntry::TypedUnit() const {
  return main_.mnuPercentBal.checked ? Unit::Percent : Unit::Dollars;
}

void DonationEntry::Enter() {
  TextBox& box = main_.Text1[money_box::kDonation];
  if (!box.typed) return;
  // Otherwise the Budget that is only typed would be overwritten.
  if (!HasBudget(values_, main_)) return desk_.SetFocus(main_.Text1[money_box::kBudget]);
  const TypedAmount typed = ReadAmount(box.text);
  if (!typed.number) {
    box.note = typed.note;
    return;
  }
  const Currency amount = Currency::FromDouble(*typed.number);
  if (amount == Currency() && *typed.number > 0) {
    box.note = kTooSmallNote;  // only a typed zero withdraws a donation
    return;
  }
  Give(amount, TypedUnit());
}

std::optional<Estimate> DonationEntry::EstimateTyped() const {
  const TextBox& box = main_.Text1[money_box::kDonation];
  const auto typed = ReadAmount(box.text).number;
  if (!box.typed || !box.enabled || !typed || !IsOrganizationSelected()) return std::nullopt;
  SessionValues values = values_;
  FeeRates rates = rates_;
  Prepare(Currency::FromDouble(*typed), TypedUnit(), values, rates);
  const Row row = SelectedRow(values);
  const Currency balance = BalanceAfter(row, values);
  return Estimate{balance, !IsOverLimit(row, values) && balance >= Currency()};
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

bool DonationEntry::IsOrganizationSelected() const {
  const ListView& list = main_.ListView1;
  return list.selected != 0 && list.Text(list.selected).empty();
}

void DonationEntry::Give(Currency amount, Unit unit) {
  const bool withdraws = amount == Currency();
  if (!RequireDonorCountry() || (!withdraws && !RequireDonorName())) return;
  if (!IsOrganizationSelected()) return;

  // A donation that is refused or overflows leaves the Balance, session fee and fee mode as they
  // were.
  const SessionValues before = values_;
  const FeeRates ratesBefore = rates_;
  const bool feeModeEnabled = main_.Option3[fee_option::kAdd].enabled;
  const auto restore = [&] {
    values_.Balance = before.Balance;
    values_.SessionFeeTaken = before.SessionFeeTaken;
    EnableFeeMode(main_, feeModeEnabled);
  };
  Row row;
  try {
    method71();
    Prepare(amount, unit, values_, rates_);
    if (values_.Donation > Currency() && values_.Donation < Currency::FromUnits(kCent)) {
      restore();  // it would cost a fee and show as .00
      rates_ = ratesBefore;
      main_.Text1[money_box::kDonation].note = kTooSmallNote;
      return;
    }
    row = SelectedRow(values_);
    if (IsOverLimit(row, values_)) {
      restore();
      return OfferLargerBudget(row, amount, unit);
    }
    MoveMoney(row);
  } catch (const RuntimeError&) {
    main_.Text1[money_box::kDonation].note = kTooLargeNote;
    return restore();
  }
  WriteRow(row.number);
  method73(values_, main_, desk_);
  main_.Label8.visible = false;
}

void DonationEntry::method71() {
  if (!main_.Check1.enabled) main_.Check1.value = 0;
  EnableFeeMode(main_, false);
}

void DonationEntry::Prepare(Currency amount, Unit unit, SessionValues& values,
                            FeeRates& rates) const {
  if (const Currency fee = SessionFeeDue(); fee != Currency()) {
    values.Balance -= fee;
    values.SessionFeeTaken = true;
  }
  values.Donation = amount;
  values.BvxFee = ServiceFee();
  if (unit == Unit::Percent) {
    values.Donation =
        Currency::FromDouble(Product(values.Balance, values.Donation).ToDouble() / 100);
  }
  values.CardFee = ComputeCardFee(values, rates, IsForeignDonor());
}

DonationEntry::Row DonationEntry::SelectedRow(const SessionValues& values) const {
  const ListView& list = main_.ListView1;
  const auto money = [&](int column) { return Currency::FromText(list.SelectedText(column)); };
  Row row;
  row.number = list.selected;
  row.amount = money(column::kAmount);
  row.fee = money(column::kFee);
  row.cardFee = money(column::kCardFee);
  row.available = row.amount + row.fee + row.cardFee + values.Balance;
  return row;
}

bool DonationEntry::IsOverLimit(const Row& row, const SessionValues& values) const {
  Currency needed = values.Donation;
  if (DeductsFees()) needed += values.BvxFee;
  if (DeductsCardFee()) needed += values.CardFee;
  return needed > row.available || values.Donation > row.available;
}

// The row's former amount and fees return to the Balance, and the new ones leave it.
Currency DonationEntry::BalanceAfter(const Row& row, const SessionValues& values) const {
  Currency balance = values.Balance + row.amount - values.Donation;
  const bool donates = values.Donation != Currency();
  if (DeductsFees()) {
    balance += row.fee;
    if (!donates || DeductsCardFee()) balance += row.cardFee;
    if (donates) balance -= values.BvxFee;
    if (donates && DeductsCardFee()) balance -= values.CardFee;
  }
  return balance;
}

void DonationEntry::MoveMoney(const Row& row) {
  ListView& list = main_.ListView1;
  const Currency balance = BalanceAfter(row, values_);
  const bool donates = values_.Donation != Currency();
  if (donates && DeductsCardFee()) {
    list.SetSubItem(row.number, column::kCardFee, values_.CardFee.ToText());
  }
  if (!donates) {
    list.ClearRow(row.number);
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
