#pragma once

#include <deque>
#include <random>

#include "platform/random_numbers.h"

namespace benevix {

// The numbers given, then a sequence that is the same in every play.
class GivenRandomNumbers : public RandomNumbers {
 public:
  void Give(double number) { given_.push_back(number); }

  void Seed(float /*seed*/) override {}
  double Next() override {
    if (given_.empty()) return static_cast<double>(engine_()) / 0x1p32;
    const double number = given_.front();
    given_.pop_front();
    return number;
  }

 private:
  std::deque<double> given_;
  std::mt19937 engine_;
};

}  // namespace benevix
