#pragma once

#include <map>
#include <set>
#include <string>

#include "database/organization_list.h"
#include "program/program.h"

namespace benevix {

// Follows the money of a session from event to event. Budget = Balance + donations + deducted fees,
// but for the exceptions that are named here; what one of them left out stays out until a Budget is
// entered, or goes with an undo.
class Books {
 public:
  explicit Books(Program& program) : last_(Read(program)) {}

  // To be called after each event; gives what is wrong, empty when the books are kept.
  std::string Follow(Program& program) {
    const Money now = Read(program);
    const bool known =
        now.unbooked == Currency() || now.unbooked == last_.unbooked || known_.contains(now.Text());
    std::string fault = now.donated == now.inRows ? "" : "rows and total differ: " + now.Text();
    if (!known && !IsException(now, program)) {
      fault += "from " + last_.Text() + " to " + now.Text();
    }
    known_.insert(now.Text());
    last_ = now;
    return fault;
  }

  // How often each exception was met, by its name.
  static inline std::map<std::string, int> met;

 private:
  struct Money {
    Currency budget, balance, donated, inRows;
    Currency unbooked;  // of the Budget, neither left nor donated nor deducted as fees
    bool sessionFeeTaken = false;
    std::map<int, ListView::Cells> rows;

    [[nodiscard]] std::string Text() const {
      std::string text = budget.ToText() + " = " + balance.ToText() + " + " + donated.ToText() +
                         " + fees, but " + unbooked.ToText();
      for (const auto& [row, cells] : rows) text += "; " + cells[column::kAmount];
      return text;
    }
  };

  static Money Read(Program& program) {
    const SessionValues& values = program.Values();
    const frmBVX& main = program.TheForms().Get<frmBVX>();
    Money money{values.Budget,          values.Balance,      values.TotalDonated, {}, {},
                values.SessionFeeTaken, main.ListView1.cells};
    money.unbooked = values.Budget - values.Balance - values.TotalDonated;
    for (const auto& [row, cells] : money.rows) {
      money.inRows += Currency::FromText(cells[column::kAmount]);
      if (main.mnuDeductFees.checked) money.unbooked -= Fees(cells);
    }
    return money;
  }

  static Currency Fees(const ListView::Cells& cells) {
    return Currency::FromText(cells[column::kFee]) + Currency::FromText(cells[column::kCardFee]);
  }

  bool IsException(const Money& now, Program& program) const {
    const frmBVX& main = program.TheForms().Get<frmBVX>();
    const Currency none;
    const auto meet = [](const char* name) { return ++met[name] > 0; };
    if (now.rows == last_.rows) {
      // The Budget becomes what is donated; without donations the Balance stays as it was.
      const Currency kept = now.donated > none ? none : last_.balance;
      if (now.budget == now.donated && now.balance == kept) return meet("a refused large Budget");
      // The Balance is counted anew without the fees that were deducted from it.
      if (now.budget >= last_.budget && now.balance == now.budget - now.donated)
        return meet("a Budget while fees are deducted");
    }
    // Leaves the Balance once, with the first donation by e-check, and stands in no row.
    const bool takes = now.sessionFeeTaken && !last_.sessionFeeTaken;
    const Currency sessionFee = takes ? program.Rates().SessionFee : none;
    const Currency change = now.unbooked - last_.unbooked;
    if (takes && change == sessionFee) return meet("the session fee");
    // The row and the total have cents, the Balance four digits.
    const Currency rounded = change - sessionFee, halfCent = Currency::FromUnits(50);
    if (main.mnuPercentBal.checked && rounded <= halfCent && rounded + halfCent >= none)
      return meet("a rounded percentage");
    // The Balance is zero then, and the donation less by one service fee. Only the row's former
    // fees let a donation get that far.
    const Currency overdrawn = sessionFee + program.Values().BvxFee - change;
    return now.balance == none && overdrawn > none &&
           overdrawn <= FormerFees(main.ListView1.selected) && meet("an overdrawn Balance");
  }

  [[nodiscard]] Currency FormerFees(int row) const {
    const auto former = last_.rows.find(row);
    return former == last_.rows.end() ? Currency() : Fees(former->second);
  }

  Money last_;
  std::set<std::string> known_;
};

}  // namespace benevix
