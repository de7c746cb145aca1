#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/runtime_error.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_shell.h"
#include "platform/linux/program_folder.h"
#include "surroundings_of_a_test.h"

namespace benevix {
namespace {

TEST(LinuxFiles, FailuresLeaveEverythingAsItWas) {
  const TempFolder folder;
  LinuxFiles files;
  const std::string history = folder / "history.dat";
  const std::string large(100, 'x');
  files.Append(history, "first\r\n");
  FillDisk(20);
  EXPECT_THROW(files.Append(history, large), RuntimeError);
  EXPECT_THROW(files.Append(folder / "new.dat", large), RuntimeError);
  EXPECT_THROW(files.Replace(history, large), RuntimeError);
  FillDisk(RLIM_INFINITY);
  EXPECT_EQ(Got(history), "first\r\n");
  const std::filesystem::directory_iterator left(folder / "");
  EXPECT_EQ(std::distance(begin(left), end(left)), 1);
  files.Append(history, "second\r\n");
  EXPECT_EQ(files.ReadAll(history), "first\r\nsecond\r\n");
}

TEST(LinuxFiles, LinksAreWrittenThrough) {
  const TempFolder folder;
  LinuxFiles files;
  const std::string real = folder / "real.dat", link = folder / "link.dat";
  const std::string large(3'000'000, 'l');
  Put(real, "a longer old text");
  Put(folder / "from.dat", large);
  std::filesystem::create_symlink(real, link);
  files.Replace(link, "new");
  EXPECT_EQ(Got(real), "new");
  files.Copy(folder / "from.dat", link);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_THROW(files.Copy(link, real), RuntimeError);  // onto itself
  EXPECT_THROW(files.Copy(folder / "", real), RuntimeError);
  EXPECT_EQ(files.ReadAll(real), large);
}

TEST(LinuxShell, FindsTheDesktop) {
  const TempFolder home;
  setenv("HOME", (home / "").c_str(), 1);
  setenv("XDG_CONFIG_HOME", "relative/is/ignored", 1);
  EXPECT_EQ(LinuxShell().SpecialFolder(kDesktopFolder), home / "Desktop");
  std::filesystem::create_directory(home / ".config");
  Put(home / ".config/user-dirs.dirs",
      "# XDG_DESKTOP_DIR=\"/no\"\nXDG_DESKTOP_DIR=\"$HOME/My \\\"Desk\\\"/\"\n");
  EXPECT_EQ(LinuxShell().SpecialFolder(kDesktopFolder), home / "My \"Desk\"");
}

TEST(LinuxShell, StartsPrograms) {
  const TempFolder folder;
  LinuxShell shell;
  Put(folder / "updater.exe", "#!/bin/sh\necho started > \"$0.ran\"\n");
  shell.StartProgram(folder / "updater.exe");
  wait(nullptr);
  EXPECT_EQ(Got(folder / "updater.exe.ran"), "started\n");
  Put(folder / "page.exe", "<html>not found</html>");
  EXPECT_THROW(shell.StartProgram(folder / "page.exe"), RuntimeError);
}

TEST(ProgramFolder, IsSeededOnceWhereTheInstalledOneIsReadOnly) {
  namespace fs = std::filesystem;
  const TempFolder folder;
  const std::string user = folder / "data/benevix", list = user + "/Resources/sharedb.dat";
  fs::create_directories(folder / "opt/Resources");
  fs::create_directory(folder / "data");
  fs::permissions(folder / "data", fs::perms::all);
  Put(folder / "opt/Resources/sharedb.dat", "list");
  fs::create_symlink("sharedb.dat", folder / "opt/Resources/shareddb.dat");
  EXPECT_EQ(ProgramFolder(folder / "opt/benevix"), folder / "opt");
  fs::permissions(folder / "opt", fs::perms(0555));
  setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
  for (const bool isFirstStart : {true, false}) {
    int status = 1;
    if (fork() == 0) {  // a user who may not write everywhere
      const bool isUser = getuid() != 0 || setuid(65534) == 0;
      _exit(isUser && ProgramFolder(folder / "opt/benevix") == user ? 0 : 1);
    }
    wait(&status);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Got(list), isFirstStart ? "list" : "");
    EXPECT_EQ(fs::read_symlink(user + "/Resources/shareddb.dat"), "sharedb.dat");
    fs::remove(list);  // by the program, for good
  }
}

}  // namespace
}  // namespace benevix
