#include "player/program_runner.h"

#include <QEventLoop>
#include <QThread>
#include <utility>

#include "player/script.h"
#include "player/words.h"

namespace benevix {

ProgramRunner::ProgramRunner(World& world, FrontEnd& frontEnd)
    : world_(world),
      frontEnd_(frontEnd),
      client_(frontEnd.TheWaits()),
      http_(client_, world.requests) {}

ProgramRunner::~ProgramRunner() {
  if (program_) frontEnd_.Stop();
}

void ProgramRunner::Start() {
  if (IsRunning()) throw CannotBeDone("the program runs already");
  TakeTurn();
  Launch();
}

void ProgramRunner::Restart() {
  if (IsRunning()) {
    Desk& desk = program_->TheDesk();
    frmBVX& main = program_->TheForms().Get<frmBVX>();
    if (desk.IsLoaded(main)) program_->TheInput().Enter([&] { desk.Unload(main); });
    AfterLine();
  }
  TakeTurn();
  Launch();
}

bool ProgramRunner::StartAgain() {
  if (!IsRunning() || !runningCopy_) throw CannotBeDone("the program does not run, or twice");
  bool ends = false;
  const std::unique_ptr<QThread> start(
      QThread::create([&] { ends = RunningCopy(world_.files, world_.Meeting(), "").IsSecond(); }));
  QEventLoop loop;  // in which the running copy answers
  QObject::connect(start.get(), &QThread::finished, &loop, &QEventLoop::quit);
  start->start();
  loop.exec();
  start->wait();
  return ends;
}

void ProgramRunner::StartSecond() {
  if (!IsRunning() || firstCopy_) throw CannotBeDone("there is no first copy, or a second one");
  frontEnd_.Stop();
  runningCopy_.reset();
  firstCopy_ = std::move(program_);
  Launch();
}

void ProgramRunner::Kill() {
  firstCopy_.reset();
  TakeTurn();
  Launch();
}

void ProgramRunner::TakeTurn() {
  runningCopy_.reset();
  if (firstCopy_) return;
  runningCopy_ = std::make_unique<RunningCopy>(world_.files, world_.Meeting(), "");
  runningCopy_->onSecondStart = [this](const QByteArray&) { frontEnd_.BringToFront(); };
}

void ProgramRunner::Launch() {
  if (program_) frontEnd_.Stop();
  program_.reset();
  finished_ = false;
  navigated_.reset();
  program_ = std::make_unique<Program>(
      Environment{world_.info, world_.settings, http_, frontEnd_.Boxes(), frontEnd_.TheWaits(),
                  world_.clock, world_.random, world_.shell, world_.files, world_.printer},
      ListAhead(world_.files, world_.info.Resource(kListFile)));
  frontEnd_.Start(*program_);
  program_->Main();
}

void ProgramRunner::Meanwhile(std::function<void()> action) {
  isNextLine_ = true;
  http_.meanwhile = [this, action = std::move(action)] {
    try {
      action();
    } catch (...) {
      raised_ = std::current_exception();  // must not pass the toolkit's event loop
    }
  };
}

void ProgramRunner::EndMeanwhile() {
  if (std::exchange(isNextLine_, false)) return;
  const bool waits = std::exchange(http_.meanwhile, nullptr) != nullptr;
  if (raised_) std::rethrow_exception(std::exchange(raised_, nullptr));
  if (waits) throw CannotBeDone("the program did not wait");
}

Program& ProgramRunner::TheProgram() {
  if (!program_) throw CannotBeDone("the program was not started");
  return *program_;
}

void ProgramRunner::AfterLine() {
  if (!program_) return;
  const PageViewer& viewer = program_->TheForms().Get<frmInfo>().wb1;
  if (viewer.navigations > 0) navigated_ = ScriptText(viewer.page.Utf8());
  if (HasEnded() && !finished_) {
    finished_ = true;
    program_->Finish();
  }
}

}  // namespace benevix
