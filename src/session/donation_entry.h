#pragma once

#include <functional>
#include <optional>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "forms/frmPayOpt.h"
#include "forms/frmPersInfo.h"
#include "session/session_values.h"

namespace benevix {

// What a donation that is only typed would do.
struct Estimate {
  Currency balance;  // that would remain
  bool fits = false;
};

// The Donation box: donates an amount or a percentage of the Balance to the selected row.
class DonationEntry {
 public:
  // The other windows that are read, and how the contact details are asked for.
  struct Others {
    const frmPersInfo& contact;
    const frmPayOpt& payment;
    std::function<void()> askForContact;
  };

  DonationEntry(frmBVX& main, SessionValues& values, FeeRates& rates, Desk& desk,
                Messages& messages, Others others)
      : main_(main),
        values_(values),
        rates_(rates),
        desk_(desk),
        messages_(messages),
        others_(std::move(others)) {}

  // While the user types: sets Donation in whole dollars, and enables proof of mailing from 1000
  // dollars on if the Balance covers them.
  void Text1_Change();

  // Handles Enter or Tab in the box: donates what was typed, or the box's note says why not.
  void Enter();

  // What Enter would do now; nothing while no amount is typed for an organization. Raises
  // RuntimeError on overflow.
  [[nodiscard]] std::optional<Estimate> EstimateTyped() const;

  // The service fee of a donation under the current options.
  [[nodiscard]] Currency ServiceFee() const;

  enum class Unit { Dollars, Percent };
  // Donates to the selected row as Enter does; an amount of 0 withdraws its donation. Does nothing
  // when no organization is selected, or when the contact details must be asked for first.
  void Give(Currency amount, Unit unit = Unit::Dollars);

  // Donates an amount that was not typed to the selected row. Proof of mailing follows the amount,
  // as it does while one is typed: below 1000 dollars it is cleared, otherwise it is `proof`.
  void GiveUntyped(Currency amount, bool proof);

  // Whether the donor's country and name are known, which every donation needs; asks if not.
  [[nodiscard]] bool RequireDonor();

  // The largest donation in whole cents that with its own fees, under the current options, does not
  // exceed `limit`. Raises RuntimeError on overflow.
  [[nodiscard]] Currency LargestWithin(Currency limit) const;
  // What the next donation deducts for the whole session: the e-check fee with the first one.
  [[nodiscard]] Currency SessionFeeDue() const;

 private:
  // The selected row before the new donation.
  struct Row {
    int number = 0;
    Currency amount, fee, cardFee;
    Currency available;  // to the new donation: the old amount and fees plus the Balance
  };

  [[nodiscard]] bool DeductsFees() const { return main_.mnuDeductFees.checked; }
  [[nodiscard]] bool DeductsCardFee() const {
    return DeductsFees() && others_.payment.Option1[payment::kCreditCard].value;
  }
  [[nodiscard]] Unit TypedUnit() const;
  [[nodiscard]] bool IsOrganizationSelected() const;
  // Starts a donation (fixed name): settles proof of mailing and locks the fee mode.
  void method71();
  // Sets the donation and its fees, and takes the session fee when that is due.
  void Prepare(Currency amount, Unit unit, SessionValues& values, FeeRates& rates) const;
  [[nodiscard]] bool RequireDonorCountry();
  // A blank name would end the program once the session is sent.
  [[nodiscard]] bool RequireDonorName();
  [[nodiscard]] bool IsForeignDonor() const;
  // Writes delivery, donor, fee and amount into the row (fixed name).
  void method72(int row);
  [[nodiscard]] Row SelectedRow(const SessionValues& values) const;
  // Whether the donation with its fees is more than the row can use.
  [[nodiscard]] bool IsOverLimit(const Row& row, const SessionValues& values) const;
  [[nodiscard]] Currency BalanceAfter(const Row& row, const SessionValues& values) const;
  // Offers to raise the Budget so that the amount or percentage fits when it is entered again.
  void OfferLargerBudget(const Row& row, Currency amount, Unit unit);
  // By how many whole dollars the Budget must rise; nothing for a percentage that never fits, since
  // it takes, with its fees, all that is added.
  [[nodiscard]] Currency MissingDollars(const Row& row) const;
  [[nodiscard]] std::optional<Currency> MissingForPercentage(Currency percentage) const;
  [[nodiscard]] Currency MaximumDonation(const Row& row) const;
  // The largest donation that with its card fee, at the next rate, does not exceed `limit`.
  [[nodiscard]] Currency LargestWithCardFee(Currency limit, Currency serviceFee) const;
  void MoveMoney(const Row& row);
  void WriteRow(int row);

  frmBVX& main_;
  SessionValues& values_;
  FeeRates& rates_;
  Desk& desk_;
  Messages& messages_;
  Others others_;
};

}  // namespace benevix
