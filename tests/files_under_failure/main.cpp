// Kills the program, lets a file call fail or the disk be full, at one call after the other of a
// way through it, and starts it again: what was confirmed must be there, and what could not be done
// must have been said.
//
//   files_under_failure                     some calls of the fixed way
//   files_under_failure SECONDS [SEED]      every call of it, then random ways, the first from SEED

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

#include "donor.h"
#include "file_calls.h"

namespace benevix {
namespace {

constexpr std::array kFaults = {Fault::Kill, Fault::Failure, Fault::FullDisk};

// What a run of the program tells after each step.
struct Told {
  Confirmed state;
  std::string said, calls;  // calls on files until now
  bool hasEnded = false;
};

std::string TextOf(Donor& donor) {
  std::string text;
  for (const std::string& part : donor.State()) text += part + '\1';
  text += donor.Said() + '\1' + std::to_string(fileCalls.count) + '\1';
  return text + (donor.HasEnded() ? "1\1" : "0\1");
}

std::vector<Told> ReadTold(std::istream& text) {
  std::vector<Told> told;
  std::vector<std::string> parts;
  for (std::string part; std::getline(text, part, '\1');) {
    parts.push_back(part);
    if (parts.size() < 6) continue;
    told.push_back({{parts[0], parts[1], parts[2]}, parts[3], parts[4], parts[5] == "1"});
    parts.clear();
  }
  return told;
}

std::string BytesOf(const World& world, const char* resource) {
  const FilePath file = world.info.Resource(resource);
  return world.files.Exists(file) ? world.files.ReadAll(file) : "";
}

// The steps of a session after a sent one are not told.
bool IsSame(const std::string& found, const std::string& told) {
  return found == told || (!told.empty() && found.starts_with(told + "; "));
}

// One way, tried with different faults.
class Trial {
 public:
  Trial(Way way, std::string name) : way_(std::move(way)), name_(std::move(name)) {
    World world;
    Furnish(world);
    expected_ = Run(world, 0, Fault::None);
    history_ = BytesOf(world, "history.dat");
  }

  [[nodiscard]] long Calls() const { return std::stol(expected_.back().calls); }
  void Check(long at, Fault fault) {
    const bool kills = fault == Fault::Kill;
    World world;
    Furnish(world);
    where_ = std::map<Fault, std::string>{{Fault::Kill, "kill at call "},
                                          {Fault::Failure, "failure of call "},
                                          {Fault::FullDisk, "full disk from call "}}
                 .at(fault) +
             std::to_string(at);
    at_ = at;
    const auto steps = Run(world, at, fault);
    const std::string list = BytesOf(world, "sharedb.dat");
    if (list != kOldList && list != kNewList) Complain("the list: " + list);
    const std::string history = BytesOf(world, "history.dat");
    const bool isWhole = history.empty() || history.ends_with("\r\n\r\n");
    if (kills ? !history_.starts_with(history) : !isWhole) Complain("the history: " + history);
    const std::string lastRequest = world.site.LastTarget().value_or("");

    if (steps.empty() && !kills) return;  // it broke
    Donor again(world);
    again.Start();
    if (again.HasEnded()) return Complain("does not start: " + again.Said());
    if (kills) {
      ExpectConfirmed(steps.size(), again.State());
    } else {
      ExpectSaid(steps, again);
    }
    ExpectTold(lastRequest, history, (steps.empty() ? "" : steps.back().said) + again.Said());
    if (world.settings.Text("machine", "TimeOut") != "30") Complain("the settings");
    if (BytesOf(world, "sharedb.dat") != kNewList) Complain("the list is not updated");
    if (history_.empty()) ExpectUndone(again);
  }

  static inline int faults = 0;

 private:
  std::vector<Told> Run(World& world, long at, Fault fault) {
    // Beside the program's folder, so that writing it is not counted.
    const auto folder = std::filesystem::path(world.info.folder.Utf8()).parent_path();
    const std::string file = folder.string() + ".told";
    const pid_t run = fork();
    if (run == 0) {
      std::ofstream told(file);
      fileCalls = {false, folder.string() + "/", at, fault};
      Donor donor(world);
      for (const auto& step : way_) {
        fileCalls.watched = true;
        step(donor);
        fileCalls.watched = false;
        told << TextOf(donor) << std::flush;
        if (donor.HasEnded()) break;
      }
      _exit(0);
    }
    int status = 0;
    waitpid(run, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != (fault == Fault::Kill ? kKilled : 0))
      Complain("broke with status " + std::to_string(status));
    std::ifstream text(file);
    auto told = ReadTold(text);
    std::filesystem::remove(file);
    return told;
  }

  // The step in progress was done wholly or not at all; all steps before it stand.
  void ExpectConfirmed(std::size_t done, const Confirmed& found) const {
    for (std::size_t part = 0; part < found.size(); ++part) {
      const std::string& after = expected_.at(done).state[part];
      const std::string& before = expected_[done == 0 ? 0 : done - 1].state[part];
      if (found[part] != before && found[part] != after)
        Complain("before " + before + "\nafter  " + after + "\nfound  " + found[part]);
    }
  }

  // A step whose file call failed ended as ever, or something was said.
  void ExpectSaid(const std::vector<Told>& steps, Donor& again) const {
    std::size_t failed = 0;
    while (failed + 1 < steps.size() && std::stol(steps[failed].calls) < at_) ++failed;
    const Told& last = steps.back();
    // At worst nothing was kept from the fault on.
    const auto before = steps.begin() + static_cast<long>(failed == 0 ? 0 : failed - 1);
    for (std::size_t part = 0; part < last.state.size(); ++part) {
      const std::string found = again.State()[part];
      if (std::none_of(before, steps.end(),
                       [&](const Told& told) { return IsSame(found, told.state[part]); }))
        Complain("older than the fault: " + found + "\nbefore " + before->state[part]);
    }
    if (last.hasEnded) {
      if (last.said.empty()) Complain("ended without a word");
    } else if (again.State() != last.state && last.said == expected_[steps.size() - 1].said) {
      Complain("lost " + last.state[0] + "\nfound " + again.State()[0]);
    }
    const Told& step = steps[failed];
    if (step.state != expected_[failed].state && step.said == expected_[failed].said)
      Complain("step " + std::to_string(failed) + " failed without a word: " + step.state[0]);
  }

  // Who has sent a session finds it in the history or was told of it.
  void ExpectTold(const std::string& lastRequest, const std::string& history,
                  const std::string& said) const {
    const std::string word = "Transaction ID: ";
    const std::string whole = history.substr(0, history.rfind("\r\n\r\n") + 1);
    for (std::size_t at = 0; (at = history_.find(word, at)) != std::string::npos; ++at) {
      const std::size_t begin = at + word.size();
      const std::string id = history_.substr(begin, history_.find(' ', begin) - begin);
      if (lastRequest.find(id) == std::string::npos || whole.find(id) != std::string::npos)
        continue;
      const bool isTold = said.find(id) != std::string::npos ||
                          said.find("could not be written to the history") != std::string::npos;
      if (!isTold) Complain("sent and forgotten: " + id);
    }
  }

  void ExpectUndone(Donor& donor) const {
    for (int i = 0; i < 100; ++i) donor.Choose(&frmBVX::mnuUndo);
    const std::string left = donor.State()[0];
    if (!left.empty()) Complain("undone, there is " + left);
  }

  void Complain(const std::string& what) const {
    ++faults;
    std::cout << name_ << ", " << where_ << ": " << what << std::endl;
  }

  Way way_;
  std::string name_, where_ = "without a fault";
  std::vector<Told> expected_;
  std::string history_;
  long at_ = 0;
};

int Test(int seconds, unsigned seed) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::seconds(seconds);
  Trial fixed(FixedWay(), "the fixed way");
  const long some = seconds > 0 ? 1 : fixed.Calls() / 60;
  long tried = 0;
  for (long at = 1; at <= fixed.Calls(); at += some) {
    for (const Fault fault : kFaults) fixed.Check(at, fault), ++tried;
  }
  for (; Clock::now() < end; ++seed) {
    std::mt19937 random(seed);
    Trial trial(RandomWay(random), "seed " + std::to_string(seed));
    for (int i = 0; i < 10; ++i, ++tried)
      trial.Check(1 + static_cast<long>(random() % static_cast<unsigned long>(trial.Calls())),
                  kFaults[static_cast<std::size_t>(i) % kFaults.size()]);
  }
  std::cout << tried << " faults in " << fixed.Calls() << " calls and random ways up to seed "
            << seed << ", complaints: " << Trial::faults << std::endl;
  return Trial::faults == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace benevix

int main(int argc, char** argv) {
  benevix::KeepWorldsInMemory();
  const QCoreApplication application(argc, argv);
  return benevix::Test(argc > 1 ? std::atoi(argv[1]) : 0,
                       argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1);
}
