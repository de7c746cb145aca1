#pragma once

#include <string>

namespace benevix {

// Rows of texts that are made when they are asked for. Rows count from 1, columns from 0.
class RowSource {
 public:
  virtual ~RowSource() = default;
  [[nodiscard]] virtual int Count() const = 0;
  [[nodiscard]] virtual std::string Text(int row, int column) const = 0;
};

}  // namespace benevix
