#pragma once

#include <memory>
#include <string>

#include "database/organization_list.h"

namespace benevix {

// Row 1 is the country Kenya, every other row N the organization "Org N" with the ID N.
class SampleRows : public RowSource {
 public:
  [[nodiscard]] int Count() const override { return 9; }
  [[nodiscard]] std::string Text(int row, int column) const override {
    if (row == 1) return column == column::kCountry ? "Kenya" : "";
    if (column == column::kOrganization) return "Org " + std::to_string(row);
    return column == column::kId ? std::to_string(row) : "";
  }
};

inline ListView SampleList() {
  ListView list;
  list.SetRows(std::make_shared<SampleRows>());
  return list;
}

inline void SetDonation(ListView& list, int row, const std::string& record) {
  list.SetSubItem(row, column::kAmount, "5.00");
  list.SetSubItem(row, column::kPool, "Pool");
  list.SetSubItem(row, column::kFrom, "John Doe");
  list.SetSubItem(row, column::kRecord, record);
}

}  // namespace benevix
