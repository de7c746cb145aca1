#include "player/words.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdlib>

#include "base/text.h"

namespace benevix {
namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

// Two hexadecimal digits off the front of `rest`.
char TakeByte(std::string_view& rest) {
  unsigned value = 0;
  const std::string_view digits = rest.substr(0, 2);
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (digits.size() < 2 || read.ptr != digits.data() + 2) {
    throw UnreadableLine("\\x needs two hexadecimal digits");
  }
  rest.remove_prefix(2);
  return static_cast<char>(value);
}

// What stands behind a backslash, off the front of `rest`.
char TakeEscape(std::string_view& rest) {
  const char c = rest.empty() ? '\0' : rest.front();
  if (!rest.empty()) rest.remove_prefix(1);
  switch (c) {
    case '"':
    case '\\':
      return c;
    case 'r':
      return '\r';
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case 'x':
      return TakeByte(rest);
    default:
      throw UnreadableLine("unknown escape in a quoted word");
  }
}

// A quoted word off the front of `rest`, which begins behind the opening quote.
std::string TakeQuoted(std::string_view& rest) {
  std::string word;
  for (;;) {
    const auto end = rest.find_first_of("\"\\");
    if (end == std::string_view::npos) throw UnreadableLine("the closing quote is missing");
    word += CodePageText(rest.substr(0, end));
    const bool closed = rest[end] == '"';
    rest.remove_prefix(end + 1);
    if (closed) break;
    word += TakeEscape(rest);
  }
  if (!rest.empty() && !IsBlank(rest.front())) {
    throw UnreadableLine("no blank behind a closing quote");
  }
  return word;
}

}  // namespace

std::vector<std::string> Words(std::string_view line) {
  std::vector<std::string> words;
  for (;;) {
    while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
    if (line.empty() || line.front() == '#') return words;
    if (line.front() == '"') {
      line.remove_prefix(1);
      words.push_back(TakeQuoted(line));
    } else {
      const auto end = std::min(line.find_first_of(" \t"), line.size());
      words.push_back(CodePageText(line.substr(0, end)));
      line.remove_prefix(end);
    }
  }
}

std::string CodePageText(std::string_view utf8) {
  bool lost = false;
  std::string text = FromUtf8(utf8, &lost);
  if (lost) throw UnreadableLine("a character that the code page lacks, or no UTF-8");
  return text;
}

std::string ScriptText(const std::string& utf8) {
  bool lost = false;
  const std::string text = FromUtf8(utf8, &lost);
  return lost ? utf8 : text;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      quoted += {'\\', c};
    } else if (c == '\r') {
      quoted += "\\r";
    } else if (c == '\n') {
      quoted += "\\n";
    } else if (c == '\t') {
      quoted += "\\t";
    } else if (static_cast<unsigned char>(c) < ' ' || c == '\x7f') {
      constexpr char digits[] = "0123456789ABCDEF";
      quoted += {'\\', 'x', digits[c / 16], digits[c % 16]};
    } else {
      quoted += c;
    }
  }
  return ToUtf8(quoted + '"');
}

std::optional<int> WholeNumberIn(const std::string& word) {
  int number = 0;
  const char* const end = word.data() + word.size();
  const auto read = std::from_chars(word.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

std::optional<double> DoubleIn(const std::string& word) {
  if (word.empty() || std::isspace(static_cast<unsigned char>(word.front()))) return std::nullopt;
  char* end = nullptr;
  const double number = std::strtod(word.c_str(), &end);
  if (end != word.c_str() + word.size()) return std::nullopt;
  return number;
}

}  // namespace benevix
