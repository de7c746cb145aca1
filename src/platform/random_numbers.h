#pragma once

namespace benevix {

class RandomNumbers {
 public:
  virtual ~RandomNumbers() = default;
  virtual void Seed(float seed) = 0;
  // At least 0 and below 1.
  virtual double Next() = 0;
};

}  // namespace benevix
