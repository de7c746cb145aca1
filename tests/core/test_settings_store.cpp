#include <gtest/gtest.h>

#include "../platform/temp_files.h"
#include "core/settings_store.h"
#include "platform/linux/linux_files.h"
#include "platform/qt/settings_file.h"

namespace benevix {
namespace {

using namespace std::string_literals;

class SettingsStoreTest : public testing::Test {
 protected:
  TempFolder folder_;
  LinuxFiles files_;
  SettingsFile registry_{files_, folder_ / "user/settings", folder_ / "machine/settings", false};
  SettingsStore store_{registry_};
};

TEST_F(SettingsStoreTest, ReadsBackWhatItWrote) {
  EXPECT_EQ(store_.GetUserString("Name"), "");
  for (const std::string& text : {"abc"s, ""s, " a=b%41\r\n;"s, "J\xF6rg \x80"s, "a\0b"s}) {
    store_.SaveUserString("Name", text);
    EXPECT_EQ(store_.GetUserString("Name"), text);
  }
  store_.SaveString(Root::LocalMachine, kSettingsPath, "Proxy", "refused");
  EXPECT_EQ(store_.GetString(Root::LocalMachine, kSettingsPath, "Proxy"), "");
}

TEST_F(SettingsStoreTest, ReadsEveryTypeAndAnyFile) {
  const auto key = registry_.CreateKey(Root::CurrentUser, kSettingsPath);
  EXPECT_EQ(SettingsStore::SetValueOnHandle(*key, "Text", value_type::kText, "abc"), 0);
  std::uint32_t type = 0;
  std::string bytes;
  EXPECT_EQ(key->Read("Text", type, bytes), 0);
  EXPECT_EQ(bytes, "abc\0"s);
  for (const std::string number : {"42", "-2147483648", "0"}) {
    store_.SetValue(Root::CurrentUser, kSettingsPath, "Number", value_type::kNumber, number);
    EXPECT_EQ(store_.GetUserString("Number"), number);
  }
  EXPECT_EQ(key->Write("Binary", value_type::kBinary, "\x01\x02"), 0);
  EXPECT_EQ(store_.GetUserString("Binary"), "");
  EXPECT_TRUE(store_.ChangeStrings(Root::CurrentUser, kSettingsPath, [](SettingsTexts& texts) {
    EXPECT_EQ(texts, (SettingsTexts{{"Text", "abc"}}));
    texts = {{"", "1"}, {"Name", "x"}};
  }));
  EXPECT_EQ(store_.GetStrings(Root::CurrentUser, kSettingsPath),
            (SettingsTexts{{"", "1"}, {"Name", "x"}}));
  EXPECT_EQ(store_.GetUserString("Number"), "0");
  for (const std::string& damaged :
       {"[Software\\Quorl\\Benevix]\nName=text:a%00b%\nNumber=dword:zz\nHex=hex:0\n\0\xFF="s,
        "\0\0\0\n]["s, std::string(3'000'000, '[')}) {
    WriteFile(folder_ / "user/settings", damaged);
    EXPECT_EQ(store_.GetUserString("Number") + store_.GetUserString("Hex"), "");
    store_.SaveUserString("Name", "new");
    EXPECT_EQ(store_.GetUserString("Name"), "new") << damaged.substr(0, 50);
  }
  std::filesystem::remove(folder_ / "user/settings");
  EXPECT_EQ(store_.ReadString(Root::CurrentUser, kSettingsPath, "Name"), "");
  std::filesystem::create_directory(folder_ / "user/settings");  // unreadable is not missing
  EXPECT_EQ(store_.ReadString(Root::CurrentUser, kSettingsPath, "Name"), std::nullopt);
}

}  // namespace
}  // namespace benevix
