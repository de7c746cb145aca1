#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/linux/linux_files.h"
#include "platform/qt/settings_file.h"
#include "temp_files.h"

namespace benevix {
namespace {

using namespace std::string_literals;

const std::string kKey = "Software\\Quorl\\Benevix";
const std::string kFavorites = kKey + "\\Favorites";

class SettingsFileTest : public testing::Test {
 protected:
  ResultCode Write(const std::string& name, const std::string& bytes,
                   std::uint32_t type = value_type::kText) {
    const auto key = settings_.CreateKey(Root::CurrentUser, kKey);
    return key ? key->Write(name, type, bytes) : kFailed;
  }
  // Type and bytes as "1:abc", read by another object; "-" without a value.
  [[nodiscard]] std::string Read(const std::string& name, const std::string& path = kKey) {
    SettingsFile settings(files_, file_, file_);
    const auto key = settings.OpenKey(Root::LocalMachine, path, Access::Query);
    std::uint32_t type = 0;
    std::string bytes;
    if (!key || key->Read(name, type, bytes) != 0) return "-";
    return std::to_string(type) + ":" + bytes;
  }

  TempFolder folder_;
  LinuxFiles files_;
  std::string file_ = folder_ / "benevix/benevix.conf";
  SettingsFile settings_{files_, file_, file_, false};
};

TEST_F(SettingsFileTest, StoresAnyText) {
  const std::string names[] = {"", "(default)", "a b/c\\d", "x=y", "[k]", "; note", "100%41"};
  const std::string texts[] = {"",
                               "abc",
                               " lead and trail ",
                               "a,b;c=\"q\"\\n",
                               "@x%41 100%",
                               "l1\r\nl2\t",
                               "n\0ul"s,
                               "\x80\x81\xFC\xFF",
                               "text:hex:",
                               "[k]",
                               std::string(1'000'000, 'm')};
  for (const auto& text : texts) {
    for (const auto& name : names) ASSERT_EQ(Write(name, text + '\0'), 0);
    for (const auto& name : names) EXPECT_EQ(Read(name), "1:" + text + '\0') << name;
  }
  EXPECT_EQ(Read("never"), "-");
}

TEST_F(SettingsFileTest, StoresTypesAndKeepsOtherLines) {
  std::filesystem::create_directory(folder_ / "benevix");
  WriteFile(file_,
            "# mine\r\n[software\\quorl\\BENEVIX]\r\nproxy = a:80, b;c \r\nbroken line\r\n"
            "Bad=dword:xyz\r\n\r\n[Other]\r\nBytes=hex:00ff\r\n");
  EXPECT_EQ(Read("Proxy"), "1:a:80, b;c\0"s);
  EXPECT_EQ(Read("Bad"), "-");
  EXPECT_EQ(Read("Bytes", "Other"), "3:\0\xFF"s);
  EXPECT_EQ(Write("Number", "\x2A\0\0\x80"s, value_type::kNumber), 0);
  EXPECT_EQ(Write("Number", "\1", value_type::kNumber), kFailed);
  EXPECT_EQ(Read("Number"), "4:\x2A\0\0\x80"s);
  EXPECT_EQ(Write("PROXY", "p:1\0"s), 0);
  EXPECT_EQ(ReadFile(file_),
            "# mine\r\n[software\\quorl\\BENEVIX]\r\nPROXY=text:p:1\nbroken line\r\n"
            "Bad=dword:xyz\r\nNumber=dword:8000002a\n\r\n[Other]\r\nBytes=hex:00ff\r\n");
}

TEST_F(SettingsFileTest, CreatesAndDeletesKeys) {
  const auto exists = [&](const std::string& path) {
    return settings_.OpenKey(Root::CurrentUser, path, Access::Full) != nullptr;
  };
  EXPECT_FALSE(exists(kKey));
  EXPECT_NE(settings_.CreateKey(Root::CurrentUser, kFavorites), nullptr);
  EXPECT_TRUE(exists(kFavorites) && exists(kKey) && !exists("Soft"));
  ASSERT_EQ(Write("kept", "k\0"s), 0);
  EXPECT_EQ(settings_.DeleteKey(Root::CurrentUser, kFavorites), 0);
  EXPECT_FALSE(exists(kFavorites));
  EXPECT_EQ(Read("kept"), "1:k\0"s);
}

TEST_F(SettingsFileTest, FailedWritesChangeNothing) {
  // Nothing in the place of a lock file matters.
  std::filesystem::create_directories(file_ + ".lock");
  ASSERT_EQ(Write("Language", "old\0"s), 0);
  LimitFileSize(500);
  for (const std::size_t length : {1'000U, 1'000'000U}) {
    EXPECT_NE(Write("Language", std::string(length, 'n')), 0);
    EXPECT_EQ(Read("Language"), "1:old\0"s);
  }
  LimitFileSize();
  EXPECT_EQ(Read("Language"), "1:old\0"s);
  EXPECT_EQ(settings_.CreateKey(Root::LocalMachine, kKey), nullptr);
  EXPECT_EQ(settings_.OpenKey(Root::LocalMachine, kKey, Access::Full), nullptr);
  std::filesystem::remove(file_);
  std::filesystem::create_symlink("/dev/zero", file_);  // endless
  EXPECT_NE(Write("Language", "new\0"s), 0);
  EXPECT_EQ(Read("Language"), "-");
}

// Values of equal length, so that neither the file's size nor its time, with the coarse ticks of
// the file system, shows every change.
TEST_F(SettingsFileTest, ConcurrentProgramsLoseNoValue) {
  constexpr int count = 200;
  for (const std::string program : {"a", "b"}) {
    if (fork() != 0) continue;
    int lost = 0;
    for (int i = 0; i < count; ++i) {
      const std::string last = std::to_string(i % 10) + '\0';
      lost += Write(program + std::to_string(i), "x\0"s) != 0 ? 1 : 0;
      lost += Write(program, last) != 0 || Read(program) != "1:" + last ? 1 : 0;
    }
    _exit(lost);
  }
  for (int status = 0; wait(&status) > 0;) EXPECT_EQ(status, 0);
  for (int i = 0; i < count; ++i) {
    EXPECT_EQ(Read("a" + std::to_string(i)) + Read("b" + std::to_string(i)), "1:x\0001:x\0"s);
  }
}

}  // namespace
}  // namespace benevix
