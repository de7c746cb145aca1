#pragma once

#include <string>

#include "../list_of_a_test.h"

namespace benevix {

inline void PutDonation(ListView& list, int row, const std::string& record) {
  list.SetSubItem(row, column::kAmount, "5.00");
  list.SetSubItem(row, column::kPool, "Pool");
  list.SetSubItem(row, column::kFrom, "John Doe");
  list.SetSubItem(row, column::kRecord, record);
}

}  // namespace benevix
