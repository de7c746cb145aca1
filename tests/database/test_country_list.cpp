#include <gtest/gtest.h>
#include <random>

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/country_list.h"
#include "people/other_names.h"
#include "platform/linux/linux_files.h"

namespace benevix {
namespace {

const TextCodec kCodec("Benevix");

// Reads these bytes instead of a file: thousands of files would be slow.
class BytesAsFile : public LinuxFiles {
 public:
  explicit BytesAsFile(std::string bytes) : bytes_(std::move(bytes)) {}
  [[nodiscard]] std::string ReadAll(const FilePath&) const override { return bytes_; }

 private:
  std::string bytes_;
};

std::string Scrambled(const std::string& text) {
  std::string digits;
  kCodec.Codec(text, digits, codec_mode::kCountries, codec_direction::kScramble);
  return digits;
}

// The names, each with its comma, or "error".
std::string Countries(const std::string& bytes) {
  try {
    std::string names;
    for (const auto& name : ReadCountryList(BytesAsFile(bytes), {}, kCodec)) names += name + ",";
    return names;
  } catch (const RuntimeError&) {
    return "error";
  }
}

TEST(CountryList, ReadsTheFirstFieldOfTheFile) {
  const std::string names = "Albania,Algeria,";
  const std::string two = Scrambled(names);
  for (const auto& bytes : {two, two + "\r\n" + two, " " + two + ",XX\n", "\"" + two + "\"\r\n"}) {
    EXPECT_EQ(Countries(bytes), names) << bytes;
  }
  for (const char* bytes : {"\"\"", "\r\n"}) EXPECT_EQ(Countries(bytes), "") << bytes;
  for (const auto& bytes : {std::string(), Scrambled("Albania,Algeria"), std::string("no digits"),
                            std::string("4A\0", 3), std::string(3'000'000, 'G')}) {
    EXPECT_EQ(Countries(bytes), "error") << bytes.substr(0, 50);
  }
  std::mt19937 random(8);
  const std::string letters = "0123456789abcdefABCDEF\", \r\n";
  for (int i = 0; i < 2000; ++i) {
    std::string bytes = i % 2 == 0 ? two : "";
    for (auto n = random() % 8; n > 0; --n) {
      bytes.insert(random() % (bytes.size() + 1), 1, letters[random() % letters.size()]);
    }
    const std::string read = Countries(bytes);
    if (read.size() < 2 || read == "error") continue;
    // The file must contain what was read; its last digit may be half a pair.
    const std::string digits = Scrambled(read);
    EXPECT_NE(UpperCase(bytes).find(digits.substr(0, digits.size() - 2)), std::string::npos);
  }
}

}  // namespace
}  // namespace benevix
