#include "player/line_kinds.h"

#include <algorithm>
#include <charconv>
#include <span>

#include "base/text.h"
#include "player/keys.h"
#include "player/numbers.h"
#include "player/words.h"
#include "player/world_clock.h"

namespace benevix {
namespace {

using Texts = std::vector<std::string>;

bool IsOneOf(const std::string& word, std::initializer_list<const char*> texts) {
  return std::find(texts.begin(), texts.end(), word) != texts.end();
}

bool FitsWord(const std::string& type, const std::string& word) {
  if (type == "NUMBER") return WholeNumberIn(word).has_value();
  if (type == "FRACTION") {
    const auto value = DoubleIn(word);
    return value && *value >= 0 && *value < 1;
  }
  if (type == "MOMENT") return MomentIn(word).has_value();
  if (type == "ROOT") return IsOneOf(word, {"user", "machine", "favorites"});
  if (type == "FOLDER") return IsOneOf(word, {"programs", "desktop"});
  if (type == "ANSWER") return IsOneOf(word, {"Yes", "No", "OK"});
  if (type == "KEY")
    return IsOneOf(word, {kEnterKey, kTabKey, kEscapeKey, kBackspaceKey}) || word.size() == 1;
  const bool isLiteral = type == LowerCase(type);
  return !isLiteral || type == word;
}

bool Fits(std::span<const std::string> form, std::span<const std::string> words) {
  while (!form.empty()) {
    std::string type = form.front();
    const auto rest = form.subspan(1);
    const bool optional = type.front() == '[';
    const bool repeated = type.ends_with("...");
    if ((optional || repeated) && Fits(rest, words)) return true;
    if (optional) type = type.substr(1, type.size() - 2);
    if (repeated) type.resize(type.size() - 3);
    if (words.empty() || !FitsWord(type, words.front())) return false;
    if (!repeated) form = rest;
    words = words.subspan(1);
  }
  return words.empty();
}

}  // namespace

const LineKind& KindOf(const Texts& words) {
  std::string forms;
  for (const auto* kinds : {&SettingUpLines(), &DrivingLines(), &CheckingLines()}) {
    for (const LineKind& kind : *kinds) {
      const Texts form = Words(kind.form);
      if (form.front() != words.front()) continue;
      if (Fits(form, words)) return kind;
      forms += (forms.empty() ? "" : " or ") + std::string(kind.form);
    }
  }
  if (forms.empty()) throw UnreadableLine("unknown command " + Quoted(words.front()));
  throw UnreadableLine("should be: " + forms);
}

}  // namespace benevix
