#include "player/report.h"

#include <iostream>

namespace benevix {

void Report::At(int line) {
  const std::lock_guard lock(mutex_);
  line_ = line;
}

void Report::Pass() {
  const std::lock_guard lock(mutex_);
  ++passed_;
}

void Report::Fail(const std::string& expected, const std::string& got) {
  const std::lock_guard lock(mutex_);
  ++failed_;
  std::cout << file_ << ':' << line_ << ": expected " << expected << " got " << got << std::endl;
}

void Report::BrokeOff(const std::string& reason) {
  const std::lock_guard lock(mutex_);
  std::cout << file_ << ':' << line_ << ": the program broke off: " << reason << std::endl;
}

void Report::PrintCounts() {
  const std::lock_guard lock(mutex_);
  std::cout << file_ << ": " << passed_ << " passed, " << failed_ << " failed" << std::endl;
}

bool Report::HasFailed() {
  const std::lock_guard lock(mutex_);
  return failed_ > 0;
}

}  // namespace benevix
