#include "database/country_list.h"

#include <string_view>

#include "base/lines.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

// The first field of the first line: up to a comma, or between quotes.
std::string FirstField(std::string_view text) {
  if (text.empty()) throw RuntimeError("Input past end of file");
  std::string_view line = Lines(text).front();
  while (!line.empty() && (line.front() == ' ' || line.front() == '\t')) line.remove_prefix(1);
  if (!line.empty() && line.front() == '"') {
    line.remove_prefix(1);
    return std::string(CutField(line, '"'));
  }
  line = CutField(line, ',');
  while (!line.empty() && (line.back() == ' ' || line.back() == '\t')) line.remove_suffix(1);
  return std::string(line);
}

}  // namespace

std::vector<std::string> ReadCountryList(const Files& files, const FilePath& file,
                                         const TextCodec& codec) {
  std::string names;
  codec.Codec(FirstField(files.ReadAll(file)), names, codec_mode::kCountries,
              codec_direction::kUnscramble);
  std::vector<std::string> countries;
  for (std::string_view rest = names; !rest.empty();) {
    if (rest.find(',') == std::string_view::npos) throw RuntimeError("Invalid procedure call");
    countries.emplace_back(CutField(rest, ','));
  }
  return countries;
}

}  // namespace benevix
