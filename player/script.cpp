#include "player/script.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <span>

#include "base/text.h"
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
  if (type == "SECONDS") {
    const auto value = DoubleIn(word);
    return value && *value > 0;
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

// The script's lines one after the other.
class Reader {
 public:
  explicit Reader(const std::string& file) : stream_(file, std::ios::binary) {}

  [[nodiscard]] bool IsReadable() const { return stream_.is_open() && !stream_.bad(); }
  [[nodiscard]] int Number() const { return number_; }

  std::optional<std::string> Next() {
    std::string line;
    if (!std::getline(stream_, line)) return std::nullopt;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (number_++ == 0 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
    return line;
  }

 private:
  std::ifstream stream_;
  int number_ = 0;
};

// The lines up to a lone ".", each ended by CR LF.
std::string TakeBody(Reader& reader) {
  std::string body;
  while (const auto line = reader.Next()) {
    if (*line == ".") return body;
    body += CodePageText(*line) + "\r\n";
  }
  throw UnreadableLine("the line \".\" that ends the text is missing");
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

std::vector<ScriptLine> ReadScript(const std::string& file) {
  Reader reader(file);
  std::vector<ScriptLine> script;
  try {
    while (const auto line = reader.Next()) {
      std::vector<std::string> words = Words(*line);
      if (words.empty()) continue;
      ScriptLine read{reader.Number(), &KindOf(words), {words.begin() + 1, words.end()}};
      if (read.kind->hasBody) read.words.push_back(TakeBody(reader));
      script.push_back(std::move(read));
    }
  } catch (const UnreadableLine& line) {
    throw UnreadableScript(file + ":" + std::to_string(reader.Number()) + ": " + line.what());
  }
  if (!reader.IsReadable()) throw UnreadableScript(file + ": the file cannot be read");
  return script;
}

}  // namespace benevix
