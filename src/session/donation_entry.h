#pragma once

#include <functional>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "forms/frmPayOpt.h"
#include "forms/frmPersInfo.h"
#include "session/session_values.h"

namespace benevix {

// The Donation box: gives the selected organization an amount, or a percentage of the Balance.
class DonationEntry {
 public:
  // What the entry reads of other windows, and how it asks for the contact details.
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

  // While the user types: Donation follows in whole dollars, and proof of mailing can be asked for
  // from 1000 dollars on.
  void Text1_Change();

  // Enter or Tab in the box: gives what was typed.
  void Enter();

  // Gives the selected row an amount through the same steps; nothing when a heading or no row is
  // selected, or the contact details must be asked for first.
  void Give(Currency amount);

  // Whether the donor's country is known, without which nothing can be given; asks for it when not.
  [[nodiscard]] bool KnowsDonor();

  // The largest amount of whole cents that fits with its fees into `room`, by the options as they
  // stand.
  [[nodiscard]] Currency LargestWithin(Currency room) const;

 private:
  // What the selected row held before, and what it could use if it were given again.
  struct Row {
    int number = 0;
    Currency amount, fee, cardFee;
    Currency available;  // old total plus Balance
  };

  [[nodiscard]] bool Deducts() const { return main_.mnuDeductFees.checked; }
  [[nodiscard]] bool DeductsCardFee() const {
    return Deducts() && others_.payment.Option1[payment::kCreditCard].value;
  }
  enum class Unit { Dollars, Percent };
  void Give(Currency amount, Unit unit);
  void method71(Currency amount);
  [[nodiscard]] Currency ServiceFee() const;
  [[nodiscard]] bool TakesSessionFee() const;
  [[nodiscard]] bool IsForeignDonor() const;
  void method72(int row);
  [[nodiscard]] Row SelectedRow() const;
  [[nodiscard]] bool IsOverLimit(const Row& row) const;
  void OverLimit(const Row& row);
  [[nodiscard]] Currency Maximum(const Row& row) const;
  // The largest donation that fits into `left` with its card fee, at the rate of the next one.
  [[nodiscard]] Currency LargestWithCardFee(Currency left, Currency serviceFee) const;
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
