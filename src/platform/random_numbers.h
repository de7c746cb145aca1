#pragma once

namespace benevix {

class RandomNumbers {
 public:
  virtual ~RandomNumbers() = default;
  // Begins a new sequence.
  virtual void Seed(float seed) = 0;
  // At least 0 and less than 1.
  virtual double Next() = 0;
};

}  // namespace benevix
