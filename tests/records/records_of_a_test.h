#pragma once

#include <memory>
#include <string>

#include "controls/list_view.h"
#include "database/organization_list.h"
#include "platform/clock.h"

namespace benevix {

// Row 1 is a country, row N is the organization "Org N".
class RowsOfATest : public RowSource {
 public:
  [[nodiscard]] int Count() const override { return 9; }
  [[nodiscard]] std::string Text(int row, int column) const override {
    if (row == 1) return column == column::kCountry ? "Kenya" : "";
    return column == column::kOrganization ? "Org " + std::to_string(row) : "";
  }
};

inline ListView ListOfATest() {
  ListView list;
  list.SetRows(std::make_shared<RowsOfATest>());
  return list;
}

inline void PutDonation(ListView& list, int row, const std::string& amount,
                        const std::string& record, const std::string& fee = {},
                        const std::string& cardFee = {}) {
  list.SetSubItem(row, column::kAmount, amount);
  list.SetSubItem(row, column::kPool, "Pool");
  list.SetSubItem(row, column::kFrom, "John Doe");
  list.SetSubItem(row, column::kRecord, record);
  list.SetSubItem(row, column::kFee, fee);
  list.SetSubItem(row, column::kCardFee, cardFee);
}

class ClockOfATest : public Clock {
 public:
  [[nodiscard]] DateTime Now() const override { return now; }
  DateTime now{2003, 3, 5, 12, 34, 56.13};
};

}  // namespace benevix
