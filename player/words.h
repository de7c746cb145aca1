#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace benevix {

// A line that cannot be read; says why.
class UnreadableLine : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The words of a script line: UTF-8 in, texts of the code page out. Words are separated by blanks;
// in double quotes a word may hold blanks, be empty, and use the escapes \" \\ \r \n \t \xHH. `#`
// where a word could start begins a comment. Raises UnreadableLine.
std::vector<std::string> Words(std::string_view line);

// UTF-8 in, code page out. Raises UnreadableLine for a character that the code page lacks.
std::string CodePageText(std::string_view utf8);

// A UTF-8 text as scripts hold it: in the code page, or as it stands where the code page lacks a
// character, so that no two texts become the same.
std::string ScriptText(const std::string& utf8);

// The text in double quotes as a script would write it, UTF-8.
std::string Quoted(std::string_view text);

// The number that a whole word is.
std::optional<int> WholeNumberIn(const std::string& word);

// Decimal or C hexadecimal (0x1p-3), "inf" and "nan" too. A number too large for a double is
// infinite, one too small is 0.
std::optional<double> DoubleIn(const std::string& word);

// The keys that a script names; any other key is its character.
inline constexpr const char* kEnterKey = "Enter";
inline constexpr const char* kTabKey = "Tab";
inline constexpr const char* kEscapeKey = "Escape";
inline constexpr const char* kBackspaceKey = "Backspace";

}  // namespace benevix
