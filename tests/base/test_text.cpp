#include <gtest/gtest.h>

#include "base/lines.h"
#include "base/text.h"

namespace benevix {
namespace {

TEST(Text, RoundTripsEveryByteThroughUtf8) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  bool lost = true;
  EXPECT_EQ(FromUtf8(ToUtf8(all), &lost), all);
  EXPECT_FALSE(lost);
  EXPECT_EQ(ToUtf8("\x80 \xE9 \x9F"), "€ é Ÿ");
  // Characters that the code page lacks, and invalid UTF-8.
  const std::pair<std::string, const char*> cases[] = {{"a\u0141b", "ab"},
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
                                                       {"\xF8\x80\x80\x80"
                                                        "a",
                                                        "a"},
                                                       {"\xC3\xC3\xA9", "\xE9"}};
  for (const auto& [utf8, kept] : cases) {
    EXPECT_EQ(FromUtf8(utf8, &lost), kept) << utf8;
    EXPECT_TRUE(lost) << utf8;
  }
}

TEST(Text, ChangesCaseAndSplitsLines) {
  EXPECT_EQ(UpperCase("u.s.a. \xE9\xFF\x9A\x9C\x9E \xDF\xF7"),
            "U.S.A. \xC9\x9F\x8A\x8C\x8E \xDF\xF7");
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(UpperCase(LowerCase(text)), UpperCase(text)) << byte;
    EXPECT_EQ(LowerCase(UpperCase(text)), LowerCase(text)) << byte;
  }
  EXPECT_EQ(Lines("a\r\n\nb\rc\n\r\r\nd"),
            (std::vector<std::string_view>{"a", "", "b\rc", "\r", "d"}));
  EXPECT_EQ(Lines("a\n").size(), 1U);
}

}  // namespace
}  // namespace benevix
