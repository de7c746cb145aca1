#include "core/codec.h"

#include <charconv>

#include "base/runtime_error.h"

namespace benevix {

std::string TextCodec::Key(std::int16_t mode) const {
  if (mode == codec_mode::kExecutable) return exeName_;
  if (mode == codec_mode::kBuiltIn) return "Harvest Lanterns";
  return mode == codec_mode::kCountries ? "kkvane" : "";
}

void TextCodec::Codec(const std::string& input, std::string& output, std::int16_t mode,
                      std::int16_t direction) const {
  const bool scramble = direction == codec_direction::kScramble;
  if (!scramble && direction != codec_direction::kUnscramble) return;
  const std::string key = Key(mode);
  std::size_t k = 0;
  const auto nextKey = [&]() -> unsigned {
    if (key.empty()) throw RuntimeError("Invalid procedure call");
    return static_cast<unsigned char>(key[k++ % key.size()]);
  };
  const std::size_t step = scramble ? 1 : 2;
  for (std::size_t i = 0; i < input.size(); i += step) {
    if (scramble) {
      constexpr char digits[] = "0123456789ABCDEF";
      const unsigned c = static_cast<unsigned char>(input[i]) ^ nextKey();
      output += digits[c / 16];
      output += digits[c % 16];
    } else {
      const std::string pair = input.substr(i, 2);
      unsigned value = 0;
      const char* const end = pair.data() + pair.size();
      const auto read = std::from_chars(pair.data(), end, value, 16);
      if (read.ec != std::errc() || read.ptr != end) throw RuntimeError("Type mismatch");
      output += static_cast<char>(value ^ nextKey());
    }
  }
}

std::string TextCodec::Scramble(const std::string& text) const {
  std::string output;
  Codec(text, output, codec_mode::kExecutable, codec_direction::kScramble);
  return output;
}

std::string TextCodec::Unscramble(const std::string& digits) const {
  std::string output;
  Codec(digits, output, codec_mode::kExecutable, codec_direction::kUnscramble);
  return output;
}

}  // namespace benevix
