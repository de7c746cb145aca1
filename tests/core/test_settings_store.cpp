#include <gtest/gtest.h>

#include "../platform/surroundings_of_a_test.h"
#include "core/settings_store.h"
#include "platform/qt/settings_file.h"

namespace benevix {
namespace {

using namespace std::string_literals;

class SettingsStoreTest : public testing::Test {
 protected:
  [[nodiscard]] std::string Get(const std::string& name, Root root = Root::CurrentUser) {
    return store_.GetString(root, kSettingsPath, name);
  }

  TempFolder folder_;
  SettingsFile registry_{folder_ / "user/settings", folder_ / "machine/settings", false};
  SettingsStore store_{registry_};
};

TEST_F(SettingsStoreTest, MakesTheKeyAndReadsBackWhatItWrote) {
  EXPECT_EQ(Get("never"), "");
  const std::string texts[] = {
      "abc", "", " a=b%41\r\n;", "J\xF6rg \x80", "a\0b"s, "True", std::string(2'000'000, 'm')};
  for (const std::string& text : texts) {
    store_.SaveUserString("Name", text);
    EXPECT_TRUE(Get("Name") == text) << text.substr(0, 50);
  }
  store_.SaveString(Root::CurrentUser, kFavoritesPath, "", "2");
  EXPECT_EQ(store_.GetString(Root::CurrentUser, kFavoritesPath, ""), "2");
  EXPECT_EQ(Get(""), "");
  SettingsFile other(folder_ / "user/settings", folder_ / "machine/settings");
  EXPECT_EQ(SettingsStore(other).GetUserString("Name").size(), 2'000'000U);
}

TEST_F(SettingsStoreTest, TextsLieThereWithTheirNul) {
  store_.SaveUserString("Name", "abc");
  const auto key = registry_.OpenKey(Root::CurrentUser, kSettingsPath, Access::Query);
  ASSERT_TRUE(key);
  std::uint32_t type = 0;
  std::string bytes;
  EXPECT_EQ(key->Read("Name", type, bytes), 0);
  EXPECT_EQ(type, value_type::kText);
  EXPECT_EQ(bytes, "abc\0"s);
}

TEST_F(SettingsStoreTest, ReadsNumbersAsTextAndOtherTypesAsNothing) {
  store_.SetValue(Root::CurrentUser, kSettingsPath, "Number", value_type::kNumber, "1");
  EXPECT_EQ(Get("Number"), "");  // there is no key to write into yet
  store_.CreateKey(Root::CurrentUser, kSettingsPath);
  for (const std::string number : {"42", "-2147483648", "2147483647", "0"}) {
    store_.SetValue(Root::CurrentUser, kSettingsPath, "Number", value_type::kNumber, number);
    EXPECT_EQ(Get("Number"), number);
  }
  const auto key = registry_.OpenKey(Root::CurrentUser, kSettingsPath, Access::Full);
  ASSERT_TRUE(key);
  EXPECT_EQ(key->Write("Binary", value_type::kBinary, "\x01\x02"), 0);
  EXPECT_EQ(Get("Binary"), "");
  EXPECT_EQ(SettingsStore::SetValueOnHandle(*key, "Third", 7, "x"), 0);
  EXPECT_EQ(Get("Third"), "");
}

TEST_F(SettingsStoreTest, WhatCannotBeWrittenIsNotAndNobodyIsTold) {
  store_.SaveString(Root::LocalMachine, kSettingsPath, "Proxy", "host:1");
  EXPECT_EQ(Get("Proxy", Root::LocalMachine), "");
  store_.SaveUserString("Name", "old");
  std::filesystem::remove_all(folder_ / "user");
  Put(folder_ / "user", "a file where the folder was");
  store_.SaveUserString("Name", "new");
  EXPECT_EQ(Get("Name"), "");
}

TEST_F(SettingsStoreTest, AFileOfAnyBytesReadsAsTextsOrNothing) {
  std::filesystem::create_directory(folder_ / "user");
  for (const std::string& bytes :
       {"[Software\\Quorl\\Benevix]\nName=text:a%00b%\nNumber=dword:zz\nHex=hex:0\n\0\xFF="s,
        "[Software\\Quorl\\Benevix\nName=x"s, "\0\0\0\n]["s, std::string(3'000'000, '[')}) {
    Put(folder_ / "user/settings", bytes);
    EXPECT_LE(Get("Name").size(), 4U);
    EXPECT_EQ(Get("Number") + Get("Hex") + Get("\xFF"), "");
    store_.SaveUserString("Name", "new");
    EXPECT_EQ(Get("Name"), "new") << bytes.substr(0, 50);
  }
}

}  // namespace
}  // namespace benevix
