#pragma once

#include <memory>
#include <string>

#include "../boxes_of_a_test.h"
#include "base/format.h"
#include "database/organization_list.h"
#include "session/budget_entry.h"
#include "session/donation_entry.h"

namespace benevix {

// Row 1 is a country, the others are organizations.
class RowsOfATest : public RowSource {
 public:
  [[nodiscard]] int Count() const override { return 6; }
  [[nodiscard]] std::string Text(int row, int column) const override {
    if (row == 1) return column == column::kCountry ? "Kenya" : "";
    return column == column::kId ? std::to_string(row * 100) : "";
  }
};

// A session as the user's keys reach it.
struct SessionOfATest {
  explicit SessionOfATest(int option = payment::kCreditCard, bool deducts = true) {
    desk.Add("frmBVX", main);
    main.ListView1.SetRows(std::make_shared<RowsOfATest>());
    main.mnuAddFees.checked = !deducts;
    main.mnuDeductFees.checked = deducts;
    main.Combo1.text = "John Doe";
    contact.Text1[contact_field::kCountry].text = "U.S.A.";
    if (option >= 0) Choose(payment.Option1, static_cast<std::size_t>(option));
  }
  SessionOfATest(const SessionOfATest&) = delete;
  SessionOfATest& operator=(const SessionOfATest&) = delete;

  void TypeBudget(const std::string& text) {
    main.Text1[0].text = text;
    main.Text1[0].typed = true;
    budget.Enter();
  }
  void Give(int row, const std::string& text) {
    main.ListView1.selected = row;
    main.Text1[2].text = text;
    main.Text1[2].typed = true;
    donation.Text1_Change();
    donation.Enter();
  }
  void Give(int row, Currency amount) { Give(row, Format(amount, kAmountPattern)); }

  [[nodiscard]] std::string Cell(int row, int column) const {
    return main.ListView1.SubItem(row, column);
  }
  [[nodiscard]] Currency Sum(int column) const {
    Currency sum;
    for (const auto& [row, cells] : main.ListView1.cells) {
      sum += Currency::FromText(cells[static_cast<std::size_t>(column)]);
    }
    return sum;
  }
  // The maximum that the last question named.
  [[nodiscard]] Currency Maximum() const {
    const std::string& text = boxes.shown.back().text;
    return Currency::FromText(text.substr(text.find('$') + 1));
  }

  frmBVX main;
  frmPersInfo contact;
  frmPayOpt payment;
  SessionValues values;
  FeeRates rates;
  EventTable events;
  Desk desk{events};
  BoxesOfATest boxes;
  ProgramInfo info;
  RunValues run;
  Messages messages{boxes, info, run};
  int paymentAsked = 0, contactAsked = 0;
  BudgetEntry budget{main, values, desk, messages, [this] { ++paymentAsked; }};
  DonationEntry donation{main, values,   rates,
                         desk, messages, {contact, payment, [this] { ++contactAsked; }}};
};

}  // namespace benevix
