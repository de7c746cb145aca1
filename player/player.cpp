#include "player/player.h"

#include <chrono>
#include <clocale>
#include <condition_variable>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <mutex>
#include <thread>

#include "base/text.h"
#include "player/program_runner.h"
#include "player/script.h"
#include "player/words.h"

namespace benevix {
namespace {

constexpr std::chrono::seconds kLongest(60);

// The result of a script, printed line by line as it comes. May be called from another thread.
class Report {
 public:
  explicit Report(std::string file) : file_(std::move(file)) {}

  // The line that what follows belongs to.
  void At(int line) {
    const std::lock_guard lock(mutex_);
    line_ = line;
  }
  void Pass() {
    const std::lock_guard lock(mutex_);
    ++passed_;
  }
  // UTF-8.
  void Fail(const std::string& expected, const std::string& got) {
    const std::lock_guard lock(mutex_);
    ++failed_;
    std::cout << file_ << ':' << line_ << ": expected " << expected << " got " << got << std::endl;
  }
  void BrokeOff(const std::string& reason) {
    const std::lock_guard lock(mutex_);
    std::cout << file_ << ':' << line_ << ": the program broke off: " << reason << std::endl;
  }
  // Gives whether a check has failed.
  bool PrintCounts() {
    const std::lock_guard lock(mutex_);
    std::cout << file_ << ": " << passed_ << " passed, " << failed_ << " failed" << std::endl;
    return failed_ > 0;
  }

 private:
  std::mutex mutex_;
  std::string file_;
  int line_ = 0;
  int passed_ = 0;
  int failed_ = 0;
};

// Calls `late` on a thread of its own unless the thread is gone by then.
std::jthread CallAfter(std::chrono::seconds time, std::function<void()> late) {
  return std::jthread([time, late = std::move(late)](const std::stop_token& stop) {
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any never;
    never.wait_for(lock, stop, time, [] { return false; });
    if (!stop.stop_requested()) late();
  });
}

// The line as it can be read in a report.
std::string Shown(const ScriptLine& line) {
  std::string text(line.kind->form.substr(0, line.kind->form.find(' ')));
  for (const std::string& word : line.words) text += " " + Quoted(word);
  return text;
}

void PlayLine(const ScriptLine& line, ProgramRunner& runner, Report& report) {
  std::vector<std::string> words;
  for (const std::string& word : line.words) words.push_back(runner.TheWorld().Fill(word));
  try {
    line.kind->run(runner, words);
    runner.EndMeanwhile();
    if (line.kind->checks) report.Pass();
  } catch (const Mismatch& mismatch) {
    report.Fail(mismatch.expected, mismatch.got);
  } catch (const CannotBeDone& error) {
    report.Fail("that " + Shown(line) + " can be done,", ToUtf8(error.what()));
  }
}

void PlayInWorld(const std::vector<ScriptLine>& script, const FrontEndMaker& makeFrontEnd,
                 Report& report) {
  World world;
  const std::unique_ptr<FrontEnd> frontEnd = makeFrontEnd(world.boxes);
  ProgramRunner runner(world, *frontEnd);
  for (const ScriptLine& line : script) {
    report.At(line.number);
    PlayLine(line, runner, report);
    runner.AfterLine();
  }
}

}  // namespace

int PlayFile(const std::string& file, const FrontEndMaker& makeFrontEnd) {
  // The toolkit sets the user's locale, in which a number may have a comma.
  std::setlocale(LC_NUMERIC, "C");
  Report report(file);
  try {
    const std::vector<ScriptLine> script = ReadScript(file);
    const std::jthread limit = CallAfter(kLongest, [&] {
      report.Fail("the script to end within " + std::to_string(kLongest.count()) + " seconds,",
                  "no end");
      report.PrintCounts();
      std::_Exit(kExitFailed);
    });
    PlayInWorld(script, makeFrontEnd, report);
  } catch (const UnreadableScript& error) {
    std::cout << error.what() << std::endl;
    return kExitUnreadable;
  } catch (const std::exception& error) {
    report.BrokeOff(error.what());
    report.PrintCounts();
    return kExitUnreadable;
  }
  return report.PrintCounts() ? kExitFailed : kExitPassed;
}

}  // namespace benevix
