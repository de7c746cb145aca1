#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "benevix/users_folder.h"
#include "platform/linux/linux_files.h"
#include "platform/temp_files.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

const std::string kListOne = ";QUORL1.0000\r\n[Kenya]\r\n00000042 Water For All, Relief\r\n";
const std::string kListTwo = ";QUORL2.0013\r\n[Peru]\r\n00000002 Newer, B\r\n";
const std::string kListThree = ";QUORL3\r\n";

// An installation and a user's folder that does not exist yet.
class UsersFolder : public testing::Test {
 protected:
  UsersFolder() {
    fs::create_directories(folder_ / "share/Resources");
    WriteFile(Installed("help.html"), "help");
    WriteFile(Installed("sharedb.dat"), kListTwo);
    fs::create_symlink("sharedb.dat", Installed("shareddb.dat"));
  }

  [[nodiscard]] std::string Installed(const std::string& name) const {
    return folder_ / ("share/Resources/" + name);
  }
  [[nodiscard]] std::string Users(const std::string& name) const {
    return folder_ / ("home/benevix/Resources/" + name);
  }
  void Start() const { FillUsersFolder(folder_ / "share", folder_ / "home/benevix"); }
  // As the program installs a downloaded list.
  void InstallList(const std::string& list) const {
    LinuxFiles files;
    WriteFile(Users("$shrdb.dat"), list);
    files.Move(FilePath(Users("$shrdb.dat")), FilePath(Users("/shareddb.dat")));
  }

  TempFolder folder_;
};

TEST_F(UsersFolder, EachStartLinksMissingFilesAndKeepsTheUsersOwn) {
  fs::create_directories(Users(""));  // as after an interrupted first start
  WriteFile(Users("history.dat"), "history");
  fs::create_symlink(folder_ / "moved/help.html", Users("help.html"));
  Start();
  Start();
  EXPECT_EQ(fs::read_symlink(Users("help.html")), Installed("help.html"));
  EXPECT_EQ(fs::read_symlink(Users("shareddb.dat")), "sharedb.dat");
  EXPECT_EQ(ReadFile(Users("shareddb.dat")), kListTwo);
  EXPECT_EQ(ReadFile(Users("history.dat")), "history");

  fs::remove(Users("sharedb.dat"));  // as after an interrupted list update
  WriteFile(Users("help.html.mine"), "");
  fs::rename(Users("help.html.mine"), Users("help.html"));
  Start();
  EXPECT_EQ(ReadFile(Users("sharedb.dat")), kListTwo);
  EXPECT_EQ(ReadFile(Users("help.html")), "");
}

TEST_F(UsersFolder, TheNewerListIsUsed) {
  Start();
  InstallList(kListThree);
  Start();
  EXPECT_EQ(ReadFile(Users("sharedb.dat")), kListThree);
  EXPECT_EQ(ReadFile(Installed("sharedb.dat")), kListTwo);
  EXPECT_TRUE(fs::is_symlink(Users("shareddb.dat")));

  const std::string sameVersion = kListTwo + "[Chad]\r\n";
  for (const std::string& own : {kListOne, std::string()}) {
    InstallList(sameVersion);
    Start();
    EXPECT_EQ(ReadFile(Users("sharedb.dat")), sameVersion);
    InstallList(own);
    Start();
    EXPECT_EQ(ReadFile(Users("sharedb.dat")), kListTwo) << own;
  }
  WriteFile(Installed("sharedb.dat"), kListThree);  // an upgrade
  EXPECT_EQ(ReadFile(Users("sharedb.dat")), kListThree);
  // What cannot be a list is left to the program, which replaces it and says so.
  for (const std::string absurd : {";QUORL1e99", ";QUORL1e30"}) {
    InstallList(absurd);
    Start();
    EXPECT_EQ(ReadFile(Users("sharedb.dat")), absurd);
  }
}

TEST_F(UsersFolder, ErrorsNameTheFolder) {
  WriteFile(folder_ / "home", "a file");
  try {
    Start();
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_NE(std::string(error.what()).find(folder_ / "home"), std::string::npos);
  }
}

}  // namespace
}  // namespace benevix
