#pragma once

#include <cstdint>
#include <string>

namespace benevix {

namespace codec_mode {
inline constexpr std::int16_t kExecutable = 1;  // the key is the executable's base name
inline constexpr std::int16_t kBuiltIn = 2;
inline constexpr std::int16_t kCountries = 3;
}  // namespace codec_mode

namespace codec_direction {
inline constexpr std::int16_t kScramble = 1;
inline constexpr std::int16_t kUnscramble = 2;
}  // namespace codec_direction

// Scrambles texts with a repeating-key XOR; each character becomes two upper-case hexadecimal
// digits. This is obfuscation, not encryption.
class TextCodec {
 public:
  explicit TextCodec(std::string exeName) : exeName_(std::move(exeName)) {}

  // Appends the result to `output`. Raises RuntimeError for a mode without a key and for digits
  // that are not hexadecimal; an unknown direction does nothing.
  void Codec(const std::string& input, std::string& output, std::int16_t mode,
             std::int16_t direction) const;

  // In mode kExecutable, into a new text.
  [[nodiscard]] std::string Scramble(const std::string& text) const;
  [[nodiscard]] std::string Unscramble(const std::string& digits) const;

 private:
  [[nodiscard]] std::string Key(std::int16_t mode) const;

  std::string exeName_;
};

}  // namespace benevix
