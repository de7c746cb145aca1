#pragma once

#include <random>

#include "platform/random_numbers.h"

namespace benevix {

// Never repeats a sequence: each seed is mixed with the system's entropy, so that programs seeded
// at the same time draw different numbers.
class RandomGenerator : public RandomNumbers {
 public:
  RandomGenerator() { Seed(0); }
  void Seed(float seed) override;
  double Next() override;

 private:
  std::mt19937_64 engine_;
};

}  // namespace benevix
