#pragma once

#include <string>

#include "../recording_boxes.h"
#include "../sample_list.h"
#include "session/budget_entry.h"
#include "session/donation_entry.h"

namespace benevix {

// A session that takes what the user types.
struct SessionFixture {
  explicit SessionFixture(int option = payment::kCreditCard, bool deducts = true) {
    desk.Add(main);
    main.ListView1 = SampleList();
    main.mnuDeductFees.checked = deducts;
    main.mnuAddFees.checked = !deducts;
    main.Combo1.text = "John Doe";
    contact.Text1[contact_field::kCountry].text = "U.S.A.";
    if (option >= 0) payment.Option1[option].value = true;
  }
  SessionFixture(const SessionFixture&) = delete;
  SessionFixture& operator=(const SessionFixture&) = delete;

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
  [[nodiscard]] Currency Sum(int column) const {
    Currency sum;
    for (const auto& [row, cells] : main.ListView1.cells) {
      sum += Currency::FromText(cells[static_cast<std::size_t>(column)]);
    }
    return sum;
  }

  frmBVX main;
  frmPersInfo contact;
  frmPayOpt payment;
  SessionValues values;
  FeeRates rates;
  EventTable events;
  Desk desk{events};
  RecordingBoxes boxes;
  ProgramInfo info;
  RunValues run;
  Messages messages{boxes, info, run};
  int asked = 0;
  BudgetEntry budget{main, values, desk, messages, [this] { ++asked; }};
  DonationEntry donation{main, values,   rates,
                         desk, messages, {contact, payment, [this] { ++asked; }}};
};

}  // namespace benevix
