#include <gtest/gtest.h>
#include <random>

#include "../platform/surroundings_of_a_test.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/country_list.h"
#include "database/other_names.h"
#include "platform/linux/linux_files.h"

namespace benevix {
namespace {

// So many files would take their time on a disk.
class BytesAsFile : public LinuxFiles {
 public:
  [[nodiscard]] std::string ReadAll(const std::string&) const override { return bytes; }
  std::string bytes;
};

class DataFiles : public testing::Test {
 protected:
  [[nodiscard]] std::string Scrambled(const std::string& text) const {
    std::string digits;
    codec_.Codec(text, digits, codec_mode::kCountries, codec_direction::kScramble);
    return digits;
  }
  // The names joined by "|", or "error".
  [[nodiscard]] std::string Countries() const {
    try {
      std::string names;
      for (const auto& name : ReadCountryList(files_, path_, codec_)) names += name + "|";
      return names;
    } catch (const RuntimeError&) {
      return "error";
    }
  }

  TempFolder folder_;
  std::string path_ = folder_ / "data";
  LinuxFiles files_;
  TextCodec codec_{"Benevix"};
};

TEST_F(DataFiles, CountriesAreTheFirstFieldOfTheFile) {
  EXPECT_EQ(Countries(), "error");
  const std::string two = Scrambled("Albania,Algeria,");
  const struct {
    std::string bytes, names;
  } cases[] = {{two, "Albania|Algeria|"},
               {two + "\r\n" + two, "Albania|Algeria|"},
               {" " + two + ",XX\n", "Albania|Algeria|"},
               {"\"" + two + "\"\r\n", "Albania|Algeria|"},
               {"\"" + two, "Albania|Algeria|"},
               {"\"\"", ""},
               {"\r\n", ""},
               {"", "error"},
               {Scrambled("Albania,Algeria"), "error"},
               {Scrambled(",,"), "||"},
               {"no digits", "error"},
               {std::string("4A\0", 3), "error"},
               {std::string(3'000'000, 'G'), "error"}};
  for (const auto& [bytes, names] : cases) {
    Put(path_, bytes);
    EXPECT_EQ(Countries(), names) << bytes.substr(0, 50);
  }
  std::filesystem::remove(path_);
  std::filesystem::create_directory(path_);
  EXPECT_EQ(Countries(), "error");
}

TEST_F(DataFiles, CountriesOfRandomBytesAreAllOrNothing) {
  std::mt19937 random(8);
  BytesAsFile files;
  int read = 0;
  const std::string letters = "0123456789abcdefABCDEF\", \r\n";
  for (int i = 0; i < 1000; ++i) {
    std::string bytes = i % 2 == 0 ? Scrambled("Chad,Peru,Fiji,") : "";
    for (auto n = random() % 8; n > 0; --n) {
      bytes.insert(random() % (bytes.size() + 1), 1, letters[random() % letters.size()]);
    }
    files.bytes = bytes;
    std::vector<std::string> names;
    try {
      names = ReadCountryList(files, path_, codec_);
    } catch (const RuntimeError&) {
      continue;
    }
    std::string clear;
    for (const std::string& name : names) clear += name + ",";
    // All that was read stands there; a last digit may stand alone.
    const std::string digits = Scrambled(clear);
    EXPECT_NE(UpperCase(bytes).find(digits.substr(0, std::max(digits.size(), 2UL) - 2)),
              std::string::npos)
        << bytes;
    ++read;
  }
  EXPECT_GT(read, 50);
}

TEST_F(DataFiles, OtherNamesAreLinesInTheOrderOfTyping) {
  OtherNames names(files_, path_);
  ComboBox combo;
  combo.list = {"own"};
  names.LoadOtherNames(combo);
  EXPECT_EQ(combo.list, std::vector<std::string>{"own"});
  names.AppendOtherName("Smith, J\xF6rg");
  names.AppendOtherName("B");
  names.AppendOtherName("B");
  EXPECT_EQ(Got(path_), "Smith, J\xF6rg\r\nB\r\nB\r\n");
  Put(path_, Got(path_) + "\r\nno end");
  names.LoadOtherNames(combo);
  const std::vector<std::string> expected = {"own", "Smith, J\xF6rg", "B", "B", "", "no end"};
  EXPECT_EQ(combo.list, expected);
  OtherNames unreadable(files_, folder_ / ".");
  unreadable.LoadOtherNames(combo);
  unreadable.AppendOtherName("lost without a word");
  EXPECT_EQ(combo.list, expected);
}

}  // namespace
}  // namespace benevix
