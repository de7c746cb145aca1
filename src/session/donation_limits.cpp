// How large a donation can be, and what is offered when it is larger.

#include <algorithm>

#include "base/format.h"
#include "session/donation_entry.h"
#include "session/fees.h"
#include "session/hints.h"
#include "session/totals.h"

namespace benevix {
namespace {

constexpr std::int64_t kCent = Currency::kScale / 100;

Currency RoundUpToDollars(Currency amount) {
  const std::int64_t rest = amount.Units() % Currency::kScale;
  return rest > 0 ? amount + Currency::FromUnits(Currency::kScale - rest) : amount;
}

}  // namespace

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

std::optional<Currency> DonationEntry::MissingForPercentage(Currency percentage) const {
  const auto fits = [&](std::int32_t dollars) {
    SessionValues values = values_;
    FeeRates rates = rates_;
    values.Balance += Currency::FromWhole(dollars);
    Prepare(percentage, Unit::Percent, values, rates);
    return !IsOverLimit(SelectedRow(values), values);
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
      unit == Unit::Percent ? MissingForPercentage(amount) : MissingDollars(row);
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

}  // namespace benevix
