#include "player/stage.h"

#include "player/script.h"

namespace benevix {

Stage::Stage(World& world, FrontEnd& frontEnd)
    : world_(world),
      frontEnd_(frontEnd),
      client_(frontEnd.TheWaits()),
      http_(client_, world.requests) {}

Stage::~Stage() {
  if (program_) frontEnd_.Stop();
}

void Stage::Start() {
  if (Runs()) throw CannotBeDone("the program runs already");
  Launch();
}

void Stage::Restart() {
  if (Runs()) {
    Desk& desk = program_->TheDesk();
    frmBVX& main = program_->TheForms().Get<frmBVX>();
    if (desk.IsLoaded(main)) program_->TheInput().Enter([&] { desk.Unload(main); });
    AfterLine();
  }
  Launch();
}

void Stage::Launch() {
  if (program_) frontEnd_.Stop();
  program_.reset();
  finished_ = false;
  navigated_.reset();
  program_ = std::make_unique<Program>(
      Surroundings{world_.info, world_.settings, http_, frontEnd_.Boxes(), frontEnd_.TheWaits(),
                   world_.clock, world_.random, world_.shell, world_.files, world_.printer});
  frontEnd_.Start(*program_);
  program_->Main();
}

Program& Stage::TheProgram() {
  if (!program_) throw CannotBeDone("the program was not started");
  return *program_;
}

void Stage::AfterLine() {
  if (!program_) return;
  const PageViewer& viewer = program_->TheForms().Get<frmInfo>().wb1;
  if (viewer.navigations > 0) navigated_ = viewer.address;
  if (HasEnded() && !finished_) {
    finished_ = true;
    program_->Finish();
  }
}

}  // namespace benevix
