#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "benevix/users_folder.h"
#include "platform/linux/linux_files.h"
#include "platform/surroundings_of_a_test.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

const std::string kListOne = ";QUORL1.0000\r\n[Kenya]\r\n00000042 Water For All, Relief\r\n";
const std::string kListTwo = ";QUORL2.0013\r\n[Peru]\r\n00000002 Newer, B\r\n";
const std::string kListThree = ";QUORL3\r\n";

// An installed folder and a user's, which the program has not seen yet.
class UsersFolder : public testing::Test {
 protected:
  UsersFolder() {
    fs::create_directories(folder_ / "share/Resources");
    Put(Installed("help.html"), "help");
    Put(Installed("sharedb.dat"), kListTwo);
    fs::create_symlink("sharedb.dat", Installed("shareddb.dat"));
  }

  [[nodiscard]] std::string Installed(const std::string& name) const {
    return folder_ / ("share/Resources/" + name);
  }
  [[nodiscard]] std::string Users(const std::string& name) const {
    return folder_ / ("home/benevix/Resources/" + name);
  }
  void Start() const { FillUsersFolder(folder_ / "share", folder_ / "home/benevix"); }
  // The steps by which the program installs a list that it downloaded.
  void InstallList(const std::string& list) const {
    LinuxFiles files;
    Put(Users("$shrdb.dat"), list);
    files.Remove(Users("sharedb.dat"));
    files.Copy(Users("$shrdb.dat"), Users("/shareddb.dat"));
  }

  TempFolder folder_;
};

TEST_F(UsersFolder, EveryStartLinksWhatIsMissingAndLeavesTheUsersFiles) {
  fs::create_directories(Users(""));  // a first start that was cut short
  Put(Users("history.dat"), "history");
  fs::create_symlink(folder_ / "moved/help.html", Users("help.html"));
  Start();
  Start();
  EXPECT_EQ(fs::read_symlink(Users("help.html")), Installed("help.html"));
  EXPECT_EQ(fs::read_symlink(Users("shareddb.dat")), "sharedb.dat");
  EXPECT_EQ(Got(Users("shareddb.dat")), kListTwo);
  EXPECT_EQ(Got(Users("history.dat")), "history");

  fs::remove(Users("sharedb.dat"));  // cut short while a list was installed
  Put(Users("help.html.mine"), "");
  fs::rename(Users("help.html.mine"), Users("help.html"));
  Start();
  EXPECT_EQ(Got(Users("sharedb.dat")), kListTwo);
  EXPECT_EQ(Got(Users("help.html")), "");
}

TEST_F(UsersFolder, TheNewerListCounts) {
  Start();
  InstallList(kListThree);
  Start();
  EXPECT_EQ(Got(Users("sharedb.dat")), kListThree);
  EXPECT_EQ(Got(Installed("sharedb.dat")), kListTwo);
  EXPECT_TRUE(fs::is_symlink(Users("shareddb.dat")));

  const std::string ownEdition = kListTwo + "[Chad]\r\n";
  for (const std::string& own : {kListOne, std::string(), std::string(";QUORL1e99")}) {
    InstallList(ownEdition);
    Start();
    EXPECT_EQ(Got(Users("sharedb.dat")), ownEdition);
    InstallList(own);
    Start();
    EXPECT_EQ(Got(Users("sharedb.dat")), kListTwo) << own;
  }
  Put(Installed("sharedb.dat"), kListThree);  // an upgrade
  EXPECT_EQ(Got(Users("sharedb.dat")), kListThree);
}

TEST_F(UsersFolder, WhatCannotBeMadeIsNamed) {
  Put(folder_ / "home", "a file");
  try {
    Start();
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_NE(std::string(error.what()).find(folder_ / "home"), std::string::npos);
  }
}

}  // namespace
}  // namespace benevix
