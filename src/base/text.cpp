#include "base/text.h"

#include <algorithm>
#include <array>

namespace benevix {
namespace {

// Windows-1252, 0x80 to 0x9F: https://www.unicode.org/Public/MAPPINGS/VENDORS/MICSFT/WINDOWS/
// CP1252.TXT; the five unassigned bytes map to the control characters of the same code.
constexpr std::array<char32_t, 32> kBytes80To9F = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned char Upper(unsigned char c) {
  if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) {
    return static_cast<unsigned char>(c - 0x20);
  }
  if (c == 0x9A || c == 0x9C || c == 0x9E) return static_cast<unsigned char>(c - 0x10);
  return c == 0xFF ? 0x9F : c;
}

template <class Map>
std::string MapBytes(std::string_view text, Map map) {
  std::string result(text);
  for (char& c : result) c = static_cast<char>(map(static_cast<unsigned char>(c)));
  return result;
}

// Decodes the character at `at` and moves `at` past it; 0xFFFFFFFF for invalid UTF-8.
char32_t DecodeUtf8(std::string_view text, std::size_t& at) {
  constexpr char32_t bad = 0xFFFFFFFF;
  const auto lead = static_cast<unsigned char>(text[at++]);
  if (lead < 0x80) return lead;
  const int more = lead >= 0xF8 ? 0 : lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  if (more == 0) return bad;
  char32_t value = lead & (0x3FU >> more);
  for (int i = 0; i < more; ++i, ++at) {
    if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U) return bad;
    value = (value << 6) | (static_cast<unsigned char>(text[at]) & 0x3FU);
  }
  // Overlong encodings are invalid.
  constexpr char32_t minimum[] = {0, 0x80, 0x800, 0x10000};
  return value < minimum[more] ? bad : value;
}

}  // namespace

unsigned char LowerCaseOf(unsigned char c) {
  if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) {
    return static_cast<unsigned char>(c + 0x20);
  }
  if (c == 0x8A || c == 0x8C || c == 0x8E) return static_cast<unsigned char>(c + 0x10);
  return c == 0x9F ? 0xFF : c;
}

bool SameLetter(char a, char b) {
  return a == b ||
         LowerCaseOf(static_cast<unsigned char>(a)) == LowerCaseOf(static_cast<unsigned char>(b));
}

std::string UpperCase(std::string_view text) {
  return MapBytes(text, Upper);
}
std::string LowerCase(std::string_view text) {
  return MapBytes(text, LowerCaseOf);
}

bool SameText(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), SameLetter);
}

bool BeginsWith(std::string_view text, std::string_view word) {
  return text.size() >= word.size() &&
         std::equal(word.begin(), word.end(), text.begin(), SameLetter);
}

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

char32_t CodePageCharacter(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kBytes80To9F[byte - 0x80U] : byte;
}

int CodePageByte(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) {
    return static_cast<int>(character);
  }
  const auto* const found = std::find(kBytes80To9F.begin(), kBytes80To9F.end(), character);
  return found == kBytes80To9F.end() ? -1 : 0x80 + static_cast<int>(found - kBytes80To9F.begin());
}

std::string ToUtf8(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char c : text) {
    const char32_t u = CodePageCharacter(static_cast<unsigned char>(c));
    if (u < 0x80) {
      result += static_cast<char>(u);
    } else if (u < 0x800) {
      result += static_cast<char>(0xC0U | (u >> 6));
      result += static_cast<char>(0x80U | (u & 0x3FU));
    } else {
      result += static_cast<char>(0xE0U | (u >> 12));
      result += static_cast<char>(0x80U | ((u >> 6) & 0x3FU));
      result += static_cast<char>(0x80U | (u & 0x3FU));
    }
  }
  return result;
}

std::string FromUtf8(std::string_view text, bool* lost) {
  std::string result;
  result.reserve(text.size());
  if (lost != nullptr) *lost = false;
  for (std::size_t at = 0; at < text.size();) {
    const int byte = CodePageByte(DecodeUtf8(text, at));
    if (byte >= 0) {
      result += static_cast<char>(byte);
    } else if (lost != nullptr) {
      *lost = true;
    }
  }
  return result;
}

}  // namespace benevix
