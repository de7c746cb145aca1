#include <gtest/gtest.h>
#include <random>

#include "base/lines.h"
#include "base/text.h"

namespace benevix {
namespace {

TEST(Text, KeepsEveryByteOnTheWayThroughUtf8) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  bool lost = true;
  EXPECT_EQ(FromUtf8(ToUtf8(all), &lost), all);
  EXPECT_FALSE(lost);
  EXPECT_EQ(ToUtf8("\x80 \xE9 \x9F"), "€ é Ÿ");
}

TEST(Text, TellsWhatHasNoPlaceInTheCodePage) {
  const struct {
    std::string utf8, kept;
  } cases[] = {{"a\u0141b", "ab"},
               {"\U0001F600!", "!"},
               {"\xC2\x80", ""},
               {"\xFF"
                "a",
                "a"},
               {"\xC3", ""},
               {"\xE2\x82"
                "a",
                "a"},
               {"\xC1\x81"
                "a",
                "a"},
               {"\xE0\x80\x81", ""},
               {"\xF8\x80\x80\x80"
                "a",
                "a"},
               {"\xC3\xC3\xA9", "\xE9"}};
  for (const auto& [utf8, kept] : cases) {
    bool lost = false;
    EXPECT_EQ(FromUtf8(utf8, &lost), kept) << utf8;
    EXPECT_TRUE(lost) << utf8;
  }
}

TEST(Text, ChangesCaseInTheCodePage) {
  EXPECT_EQ(UpperCase("u.s.a. \xE9\xFF\x9A\x9C\x9E \xDF\xF7"),
            "U.S.A. \xC9\x9F\x8A\x8C\x8E \xDF\xF7");
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const std::string upper = UpperCase(text), lower = LowerCase(text);
    EXPECT_TRUE(text == upper || text == lower) << byte;
    EXPECT_EQ(UpperCase(lower), upper) << byte;
    EXPECT_EQ(LowerCase(upper), lower) << byte;
  }
}

TEST(Text, TakesLinesAndFieldsApart) {
  const std::vector<std::string_view> lines = {"a", "", "b\rc", "\r", "d"};
  EXPECT_EQ(Lines("a\r\n\nb\rc\n\r\r\nd"), lines);
  EXPECT_EQ(Lines("a\n"), std::vector<std::string_view>{"a"});
  EXPECT_TRUE(Lines("").empty());
  std::string_view rest = "a,,b";
  EXPECT_EQ(CutField(rest, ','), "a");
  EXPECT_EQ(CutField(rest, ','), "");
  EXPECT_EQ(CutField(rest, ','), "b");
  EXPECT_EQ(CutField(rest, ','), "");
  EXPECT_EQ(Trim("  a b \t "), "a b \t");
  EXPECT_EQ(Trim("   "), "");
}

}  // namespace
}  // namespace benevix
