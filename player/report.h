#pragma once

#include <mutex>
#include <string>

namespace benevix {

// What a script's play comes to, printed as it comes. May be told from another thread.
class Report {
 public:
  explicit Report(std::string file) : file_(std::move(file)) {}

  // The line that what follows belongs to.
  void At(int line);
  void Pass();
  // UTF-8.
  void Fail(const std::string& expected, const std::string& got);
  void BrokeOff(const std::string& reason);
  // "FILE: N passed, M failed"
  void PrintCounts();

  [[nodiscard]] bool HasFailed();

 private:
  std::mutex mutex_;
  std::string file_;
  int line_ = 0;
  int passed_ = 0;
  int failed_ = 0;
};

}  // namespace benevix
