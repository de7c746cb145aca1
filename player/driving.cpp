// The lines that drive the program.

#include "player/paths.h"
#include "player/script.h"
#include "player/stage.h"
#include "player/words.h"

namespace benevix {
namespace {

using Texts = std::vector<std::string>;

// Lets the front end do something with the control that a path names.
template <class F>
void Do(Stage& stage, const std::string& path, F&& action) {
  Program& program = stage.TheProgram();
  const Target target = FindControl(program, path);
  if (!action(stage.TheFrontEnd(), target)) throw CannotBeDone(WhyNot(program, target));
}

void Click(Stage& stage, const Texts& words) {
  Do(stage, words[0],
     [](FrontEnd& frontEnd, const Target& target) { return frontEnd.Click(target); });
}

void Type(Stage& stage, const Texts& words) {
  Do(stage, words[0],
     [&](FrontEnd& frontEnd, const Target& target) { return frontEnd.Type(target, words[1]); });
}

void Press(Stage& stage, const Texts& words) {
  Do(stage, words[0],
     [&](FrontEnd& frontEnd, const Target& target) { return frontEnd.Press(target, words[1]); });
}

void Select(Stage& stage, const Texts& words) {
  const MouseButton button = words.size() == 3 ? MouseButton::Right : MouseButton::Left;
  const int row = WholeNumberIn(words[1]).value();
  Do(stage, words[0], [&](FrontEnd& frontEnd, const Target& target) {
    return frontEnd.Select(target, row, button);
  });
}

void Pick(Stage& stage, const Texts& words) {
  Do(stage, words[0],
     [&](FrontEnd& frontEnd, const Target& target) { return frontEnd.Pick(target, words[1]); });
}

void Leave(Stage& stage, const Texts& words) {
  Do(stage, words[0],
     [](FrontEnd& frontEnd, const Target& target) { return frontEnd.Leave(target); });
}

void Hover(Stage& stage, const Texts& words) {
  Do(stage, words[0],
     [](FrontEnd& frontEnd, const Target& target) { return frontEnd.Hover(target); });
}

void Scroll(Stage& stage, const Texts& words) {
  const int value = WholeNumberIn(words[1]).value();
  Do(stage, words[0],
     [&](FrontEnd& frontEnd, const Target& target) { return frontEnd.Scroll(target, value); });
}

void Tick(Stage& stage, const Texts& words) {
  const int times = words.size() == 2 ? WholeNumberIn(words[1]).value() : 1;
  Do(stage, words[0],
     [&](FrontEnd& frontEnd, const Target& target) { return frontEnd.Tick(target, times); });
}

void Close(Stage& stage, const Texts& words) {
  Program& program = stage.TheProgram();
  const Named named = Find(program, words[0]);
  if (named.target.control != nullptr || !named.property.empty()) {
    throw CannotBeDone("there is no window " + words[0]);
  }
  if (!stage.TheFrontEnd().Close(*named.target.window)) {
    throw CannotBeDone(WhyNot(program, named.target));
  }
}

void Answer(Stage& stage, const Texts& words) {
  for (const std::string& word : words) {
    stage.TheWorld().boxes.Queue(word == "Yes"  ? BoxAnswer::Yes
                                 : word == "No" ? BoxAnswer::No
                                                : BoxAnswer::OK);
  }
}

void Shot(Stage& stage, const Texts& words) {
  if (!stage.TheFrontEnd().Shot(words[0]))
    throw CannotBeDone("there is nothing to take a picture of");
}

}  // namespace

const std::vector<LineKind>& DrivingLines() {
  static const std::vector<LineKind> kinds = {
      {"start", [](Stage& stage, const Texts&) { stage.Start(); }},
      {"restart", [](Stage& stage, const Texts&) { stage.Restart(); }},
      {"click PATH", Click},
      {"type PATH TEXT", Type},
      {"press PATH KEY", Press},
      {"select PATH NUMBER [right]", Select},
      {"pick PATH TEXT", Pick},
      {"leave PATH", Leave},
      {"hover PATH", Hover},
      {"scroll PATH NUMBER", Scroll},
      {"tick PATH [NUMBER]", Tick},
      {"close FORM", Close},
      {"answer ANSWER ANSWER...", Answer},
      {"shot NAME", Shot},
  };
  return kinds;
}

}  // namespace benevix
