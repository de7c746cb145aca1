#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/qt/qt_http_client.h"
#include "platform/qt/running_copy.h"
#include "player/front_end.h"
#include "player/world.h"
#include "program/program.h"

namespace benevix {

// The program in its world, run after run, behind a front end.
class ProgramRunner {
 public:
  ProgramRunner(World& world, FrontEnd& frontEnd);
  ~ProgramRunner();
  ProgramRunner(const ProgramRunner&) = delete;
  ProgramRunner& operator=(const ProgramRunner&) = delete;

  [[nodiscard]] World& TheWorld() { return world_; }
  [[nodiscard]] FrontEnd& TheFrontEnd() { return frontEnd_; }

  // Raises CannotBeDone while the program runs.
  void Start();
  // Ends the program as closing the main window would and starts it again. One that has ended, or
  // still shows its splash, is only started.
  void Restart();
  // Starts the program once more while it runs, as a user would. False when two copies would run.
  // Raises CannotBeDone when the program does not run, or when two copies do.
  bool StartAgain();
  // Starts the program once more while it runs, where the copies do not find each other. The script
  // goes on with the second copy; the first one keeps running, without its windows. Raises
  // CannotBeDone when the program does not run.
  void StartSecond();
  // Lets the program, all its copies, no time to end, as a power cut does, and starts it again.
  void Kill();

  [[nodiscard]] bool IsRunning() const { return program_ && !program_->TheDesk().Ended(); }
  [[nodiscard]] bool HasEnded() const { return program_ && program_->TheDesk().Ended(); }
  // The present run. Raises CannotBeDone when there is none yet.
  [[nodiscard]] Program& TheProgram();

  // To be called after every line: finishes a run that has ended, and notes where the page viewer
  // was sent.
  void AfterLine();

  // The action is done while the program waits for a slow request of the script's next line.
  void Meanwhile(std::function<void()> action);
  // To be called after every line. Raises what the action has raised, and CannotBeDone when the
  // program did not wait.
  void EndMeanwhile();

  // The address that the page viewer was last sent to in the present run.
  [[nodiscard]] const std::optional<std::string>& Navigated() const { return navigated_; }

 private:
  void Launch();
  // Becomes the copy that a second start finds, except beside a first copy.
  void TakeTurn();

  World& world_;
  FrontEnd& frontEnd_;
  QtHttpClient client_;
  RecordingHttpClient http_;
  std::unique_ptr<Program> firstCopy_;  // while the script is with the second one
  std::unique_ptr<RunningCopy> runningCopy_;
  std::unique_ptr<Program> program_;
  bool finished_ = false;
  std::optional<std::string> navigated_;
  bool isNextLine_ = false;
  std::exception_ptr raised_;
};

}  // namespace benevix
