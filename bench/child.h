#pragma once

#include <array>
#include <string>
#include <vector>

namespace benevix {

using Command = std::vector<std::string>;

// Milliseconds from before the process starts to its end. Raises std::runtime_error when it fails.
double TimeToEnd(const Command& command);

// A process that says when it is ready by a line on its standard output, and ends when its standard
// input does.
class ReadyChild {
 public:
  // Returns when the first line has come. Raises std::runtime_error when none comes.
  explicit ReadyChild(const Command& command);
  ReadyChild(const ReadyChild&) = delete;
  ReadyChild& operator=(const ReadyChild&) = delete;
  ~ReadyChild();

  [[nodiscard]] int Process() const { return process_; }
  // What the first line says.
  [[nodiscard]] const std::string& Line() const { return line_; }
  // Milliseconds from before the process started to its first line.
  [[nodiscard]] double Elapsed() const { return elapsed_; }

 private:
  // The end that is read, then the one that is written.
  using PipeEnds = std::array<int, 2>;

  ReadyChild(const Command& command, PipeEnds toChild, PipeEnds fromChild);

  int process_ = 0;
  int input_ = -1;
  int output_ = -1;
  std::string line_;
  double elapsed_ = 0;
};

}  // namespace benevix
