#include "child.h"

#include <array>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

#include "stopwatch.h"

namespace benevix {
namespace {

// Starts a process with redirected standard streams.
class Streams {
 public:
  Streams() { posix_spawn_file_actions_init(&actions_); }
  Streams(const Streams&) = delete;
  Streams& operator=(const Streams&) = delete;
  ~Streams() { posix_spawn_file_actions_destroy(&actions_); }

  void Connect(int from, int to) { posix_spawn_file_actions_adddup2(&actions_, from, to); }

  [[nodiscard]] pid_t Spawn(const Command& command) const {
    std::vector<char*> arguments;
    for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    pid_t process = 0;
    if (posix_spawnp(&process, arguments[0], &actions_, nullptr, arguments.data(), environ) != 0) {
      throw std::runtime_error(command[0] + " cannot be started");
    }
    return process;
  }

 private:
  posix_spawn_file_actions_t actions_{};
};

std::array<int, 2> Pipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe can be made");
  return ends;
}

}  // namespace

double TimeToEnd(const Command& command, int status) {
  // A pipe, since grep stops at the first match when its output is /dev/null.
  const auto [output, childOutput] = Pipe();
  Streams streams;
  streams.Connect(childOutput, STDOUT_FILENO);
  const Stopwatch watch;
  const pid_t process = streams.Spawn(command);
  close(childOutput);
  for (char c = 0; read(output, &c, 1) == 1;) continue;
  close(output);
  int ended = 0;
  waitpid(process, &ended, 0);
  const double elapsed = watch.Milliseconds();
  if (!WIFEXITED(ended) || WEXITSTATUS(ended) != status) {
    throw std::runtime_error(command[0] + " failed");
  }
  return elapsed;
}

ReadyChild::ReadyChild(const Command& command) : ReadyChild(command, Pipe(), Pipe()) {}

ReadyChild::ReadyChild(const Command& command, PipeEnds toChild, PipeEnds fromChild)
    : input_(toChild[1]), output_(fromChild[0]) {
  Streams streams;
  streams.Connect(toChild[0], STDIN_FILENO);
  streams.Connect(fromChild[1], STDOUT_FILENO);
  const Stopwatch watch;
  process_ = streams.Spawn(command);
  close(toChild[0]);
  close(fromChild[1]);
  for (char c = 0; read(output_, &c, 1) == 1 && c != '\n';) line_ += c;
  elapsed_ = watch.Milliseconds();
  if (line_.empty()) throw std::runtime_error(command[0] + " did not become ready");
}

ReadyChild::~ReadyChild() {
  close(input_);
  waitpid(process_, nullptr, 0);
  close(output_);
}

}  // namespace benevix
