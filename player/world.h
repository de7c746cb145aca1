#pragma once

#include <QTemporaryDir>
#include <deque>
#include <random>
#include <string>

#include "platform/linux/linux_files.h"
#include "platform/program_info.h"
#include "platform/qt/running_copy.h"
#include "platform/random_numbers.h"
#include "player/world_clock.h"
#include "player/world_records.h"
#include "player/world_settings.h"
#include "player/world_site.h"

namespace benevix {

// The numbers given, then a sequence that is the same in every run.
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

// Everything around the program in a script, fresh with each.
class World {
  QTemporaryDir folder_;

 public:
  World();

  // {site}, {pay} and {folder} replaced.
  [[nodiscard]] std::string Fill(std::string text) const;

  // A path of the program folder, or of the shell folder `programs` or `desktop`, with either kind
  // of slash, as the system wants it.
  [[nodiscard]] std::string ProgramFile(const std::string& path) const;
  [[nodiscard]] std::string ShellFile(const std::string& folder, const std::string& path) const;

  // Where the copies of the program find each other.
  [[nodiscard]] MeetingPlace Meeting() const {
    return {folder_.filePath("runtime"), QString::fromStdString(info.folder.Utf8())};
  }

  // What the next start of the program is told.
  ProgramInfo info;

  WorldSite site;
  WorldSettings settings;
  StandingClock clock;
  GivenRandomNumbers random;
  RecordingShell shell;
  RecordingPrinter printer;
  LinuxFiles files;
  BoxAnswers boxes;
  Recorded<std::string> requests;

 private:
  [[nodiscard]] std::string Inside(const std::string& name) const {
    return folder_.filePath(QString::fromStdString(name)).toStdString();
  }
};

// Whether the addresses are the same but for the kind of their slashes.
bool SameAddress(const std::string& a, const std::string& b);

// The deployment values of a program whose services are all on the site of this base address.
Deployment DeploymentOn(const std::string& site);

}  // namespace benevix
