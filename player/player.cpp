#include "player/player.h"

#include "base/text.h"
#include "player/words.h"

namespace benevix {
namespace {

// The line as it can be read in a report.
std::string Shown(const ScriptLine& line) {
  std::string text(line.kind->form.substr(0, line.kind->form.find(' ')));
  for (const std::string& word : line.words) text += " " + Quoted(word);
  return text;
}

void PlayLine(const ScriptLine& line, Stage& stage, Report& report) {
  std::vector<std::string> words;
  for (const std::string& word : line.words) words.push_back(stage.TheWorld().Fill(word));
  try {
    line.kind->run(stage, words);
    if (line.kind->checks) report.Pass();
  } catch (const Mismatch& mismatch) {
    report.Fail(mismatch.expected, mismatch.got);
  } catch (const CannotBeDone& error) {
    report.Fail("that " + Shown(line) + " can be done,", ToUtf8(error.what()));
  }
}

}  // namespace

void Play(const std::vector<ScriptLine>& script, Stage& stage, Report& report) {
  for (const ScriptLine& line : script) {
    report.At(line.number);
    PlayLine(line, stage, report);
    stage.AfterLine();
  }
}

}  // namespace benevix
