#include "parley.h"

#include <algorithm>
#include <array>

namespace benevix {
namespace {

struct Language {
  std::string_view code;
  std::string_view name;
};

constexpr std::array kLanguages = {
    Language{"en", "English"},    Language{"fr", "French"},  Language{"de", "German"},
    Language{"es", "Spanish"},    Language{"it", "Italian"}, Language{"nl", "Dutch"},
    Language{"pt", "Portuguese"}, Language{"pl", "Polish"},  Language{"sv", "Swedish"},
};

bool EqualButForCase(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

// Empty for a language that is not known.
std::string_view LanguageName(std::string_view text) {
  for (const Language& language : kLanguages) {
    if (EqualButForCase(text, language.code) || EqualButForCase(text, language.name)) {
      return language.name;
    }
  }
  return {};
}

// Pure ASCII, so that it reads the same in every code page; line ends become pilcrows.
std::string AsEntities(std::string_view text) {
  std::string entities;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\n') {
      entities += " &para; ";
    } else if (c == '&' || c == '<' || c == '>' || byte >= 0x80) {
      entities += "&#" + std::to_string(byte) + ";";
    } else if (byte >= ' ') {
      entities += c;
    }
  }
  return entities;
}

}  // namespace

std::string Interpret(std::string_view languages, std::string_view page) {
  const auto slash = std::min(languages.find('/'), languages.size());
  const std::string_view from = LanguageName(languages.substr(0, slash));
  const std::string_view to = LanguageName(languages.substr(std::min(slash + 1, languages.size())));
  if (from.empty() || to.empty()) return "<html>error: that language is not spoken here";
  while (page.ends_with('\n') || page.ends_with('\r')) page.remove_suffix(1);
  return "<html>[Parley, from " + std::string(from) + " to " + std::string(to) +
         ". The interpreter of this demonstration nods wisely, bows, and repeats every word as it "
         "is.] &para; " +
         AsEntities(page);
}

}  // namespace benevix
