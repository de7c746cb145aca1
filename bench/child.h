#pragma once

#include <array>
#include <string>
#include <vector>

namespace benevix {

using Command = std::vector<std::string>;

// Runs a process and returns its time in milliseconds. Raises std::runtime_error when it ends with
// another exit status.
double TimeToEnd(const Command& command, int status = 0);

// A process that writes a line when it is ready and exits at the end of its standard input.
class ReadyChild {
 public:
  // Waits for the line. Raises std::runtime_error when the process ends without it.
  explicit ReadyChild(const Command& command);
  ReadyChild(const ReadyChild&) = delete;
  ReadyChild& operator=(const ReadyChild&) = delete;
  ~ReadyChild();

  [[nodiscard]] int Process() const { return process_; }
  [[nodiscard]] const std::string& Line() const { return line_; }
  // Milliseconds from the start of the process to its line.
  [[nodiscard]] double Elapsed() const { return elapsed_; }

 private:
  // The read end, then the write end.
  using PipeEnds = std::array<int, 2>;

  ReadyChild(const Command& command, PipeEnds toChild, PipeEnds fromChild);

  int process_ = 0;
  int input_ = -1;
  int output_ = -1;
  std::string line_;
  double elapsed_ = 0;
};

}  // namespace benevix
