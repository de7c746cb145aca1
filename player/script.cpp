#include "player/script.h"

#include <fstream>
#include <optional>

#include "player/words.h"

namespace benevix {
namespace {

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
