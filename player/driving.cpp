// The lines that drive the program.

#include "player/paths.h"
#include "player/program_runner.h"
#include "player/script.h"
#include "player/words.h"

namespace benevix {
namespace {

using Texts = std::vector<std::string>;

// Does an action of the front end on the control that a path names.
template <class F>
void Do(ProgramRunner& runner, const std::string& path, F&& action) {
  Program& program = runner.TheProgram();
  const Target target = FindControl(program, path);
  if (!action(runner.TheFrontEnd(), target)) throw CannotBeDone(WhyNot(program, target));
}

template <bool (FrontEnd::*action)(const Target&)>
void DoPlain(ProgramRunner& runner, const Texts& words) {
  Do(runner, words[0],
     [](FrontEnd& frontEnd, const Target& target) { return (frontEnd.*action)(target); });
}

template <bool (FrontEnd::*action)(const Target&, const std::string&)>
void DoWithText(ProgramRunner& runner, const Texts& words) {
  Do(runner, words[0], [&](FrontEnd& frontEnd, const Target& target) {
    return (frontEnd.*action)(target, words[1]);
  });
}

// Without a number it is 1.
template <bool (FrontEnd::*action)(const Target&, int)>
void DoWithNumber(ProgramRunner& runner, const Texts& words) {
  const int number = words.size() == 2 ? WholeNumberIn(words[1]).value() : 1;
  Do(runner, words[0],
     [&](FrontEnd& frontEnd, const Target& target) { return (frontEnd.*action)(target, number); });
}

void Select(ProgramRunner& runner, const Texts& words) {
  const MouseButton button = words.size() == 3 ? MouseButton::Right : MouseButton::Left;
  const int row = WholeNumberIn(words[1]).value();
  Do(runner, words[0], [&](FrontEnd& frontEnd, const Target& target) {
    return frontEnd.Select(target, row, button);
  });
}

void Close(ProgramRunner& runner, const Texts& words) {
  Program& program = runner.TheProgram();
  const Named named = Find(program, words[0]);
  if (named.target.control != nullptr || !named.property.empty()) {
    throw CannotBeDone("there is no window " + words[0]);
  }
  if (!runner.TheFrontEnd().Close(*named.target.window)) {
    throw CannotBeDone(WhyNot(program, named.target));
  }
}

// While the program waits for the request that the next line makes.
void Meanwhile(ProgramRunner& runner, const Texts& words) {
  try {
    const LineKind& kind = KindOf(words);
    runner.Meanwhile(
        [&runner, &kind, rest = Texts(words.begin() + 1, words.end())] { kind.run(runner, rest); });
  } catch (const UnreadableLine& line) {
    throw CannotBeDone(line.what());
  }
}

void Answer(ProgramRunner& runner, const Texts& words) {
  for (const std::string& word : words) {
    runner.TheWorld().boxes.Queue(word == "Yes"  ? BoxAnswer::Yes
                                  : word == "No" ? BoxAnswer::No
                                                 : BoxAnswer::OK);
  }
}

void SaveAs(ProgramRunner& runner, const Texts& words) {
  World& world = runner.TheWorld();
  world.boxes.QueueFile(FilePath(world.ProgramFile(words[0])));
}

void Shot(ProgramRunner& runner, const Texts& words) {
  if (!runner.TheFrontEnd().Shot(words[0]))
    throw CannotBeDone("there is nothing to take a picture of");
}

void StartAgain(ProgramRunner& runner, const Texts& /*words*/) {
  runner.TheFrontEnd().Cover();
  if (!runner.StartAgain()) throw Mismatch{"the second start to end,", "two copies"};
  if (!runner.TheFrontEnd().IsInFront()) throw Mismatch{"windows in front,", "covered ones"};
}

}  // namespace

const std::vector<LineKind>& DrivingLines() {
  static const std::vector<LineKind> kinds = {
      {"start", [](ProgramRunner& runner, const Texts&) { runner.Start(); }},
      {"restart", [](ProgramRunner& runner, const Texts&) { runner.Restart(); }},
      {"start-again", StartAgain, false, true},
      {"second", [](ProgramRunner& runner, const Texts&) { runner.StartSecond(); }},
      {"kill", [](ProgramRunner& runner, const Texts&) { runner.Kill(); }},
      {"click PATH", DoPlain<&FrontEnd::Click>},
      {"type PATH TEXT", DoWithText<&FrontEnd::Type>},
      {"paste PATH TEXT", DoWithText<&FrontEnd::Paste>},
      {"press PATH KEY", DoWithText<&FrontEnd::Press>},
      {"select PATH NUMBER [right]", Select},
      {"column PATH NUMBER", DoWithNumber<&FrontEnd::ClickColumn>},
      {"pick PATH TEXT", DoWithText<&FrontEnd::Pick>},
      {"leave PATH", DoPlain<&FrontEnd::Leave>},
      {"hover PATH", DoPlain<&FrontEnd::Hover>},
      {"scroll PATH NUMBER", DoWithNumber<&FrontEnd::Scroll>},
      {"tick PATH [NUMBER]", DoWithNumber<&FrontEnd::Tick>},
      {"arrive PATH TEXT", DoWithText<&FrontEnd::Arrive>},
      {"close FORM", Close},
      {"meanwhile COMMAND WORD...", Meanwhile},
      {"answer ANSWER ANSWER...", Answer},
      {"save-as PATH", SaveAs},
      {"shot NAME", Shot},
  };
  return kinds;
}

}  // namespace benevix
