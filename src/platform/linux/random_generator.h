#pragma once

#include <random>

#include "platform/random_numbers.h"

namespace benevix {

// Never the same sequence twice: the system's entropy goes into every seed, so that two programs
// seeded in the same instant draw different numbers.
class RandomGenerator : public RandomNumbers {
 public:
  RandomGenerator() { Seed(0); }
  void Seed(float seed) override;
  double Next() override;

 private:
  std::mt19937_64 engine_;
};

}  // namespace benevix
