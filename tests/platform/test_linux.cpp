#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "base/runtime_error.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_shell.h"
#include "platform/linux/program_folder.h"
#include "platform/linux/random_generator.h"
#include "platform/linux/user_folders.h"
#include "temp_files.h"

namespace benevix {
namespace {

TEST(LinuxFiles, FailuresChangeNothing) {
  const TempFolder folder;
  LinuxFiles files;
  const FilePath history(folder / "history.dat");
  const std::string large(100, 'x');
  files.Append(history, "first\r\n");
  LimitFileSize(20);
  EXPECT_THROW(files.Append(history, large), RuntimeError);
  EXPECT_THROW(files.Append(FilePath(folder / "new.dat"), large), RuntimeError);
  EXPECT_THROW(files.Replace(history, large), RuntimeError);
  LimitFileSize();
  EXPECT_EQ(ReadFile(history.Utf8()), "first\r\n");
  const std::filesystem::directory_iterator entries(folder / "");
  EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
  WriteFile(history.Utf8(), "torn");
  files.Append(history, "second\r\n");
  EXPECT_EQ(files.ReadAll(history), "torn\r\nsecond\r\n");
  EXPECT_EQ(std::filesystem::status(history.Utf8()).permissions(), std::filesystem::perms(0600));
  // A pipe is no file, and is not waited for.
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_THROW(files.Append(FilePath(folder / "pipe"), "record"), RuntimeError);
  EXPECT_THROW(static_cast<void>(files.ReadAll(FilePath(folder / "pipe"))), RuntimeError);
}

TEST(LinuxFiles, OtherProcessesLoseNothingAndHoldNothing) {
  const TempFolder folder;
  LinuxFiles files;
  // Another one created the file, could not write and takes it back.
  const std::string file = folder / "history.dat";
  const int other = open(file.c_str(), O_CREAT | O_RDWR, 0600);
  flock(other, LOCK_EX);
  std::thread append([&] { files.Append(FilePath(file), "record\r\n"); });
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  unlink(file.c_str());
  close(other);
  append.join();
  EXPECT_EQ(ReadFile(file), "record\r\n");

  const auto lock = files.Lock(FilePath(folder / ""), {});
  EXPECT_NE(lock, nullptr);
  EXPECT_EQ(files.Lock(FilePath(folder / ""), {}), nullptr);

  const pid_t dead = fork();
  if (dead == 0) _exit(0);
  wait(nullptr);
  const std::string leftover = folder / ("a." + std::to_string(dead) + ".new");
  const std::string inUse = folder / ("a." + std::to_string(getppid()) + ".new");
  for (const std::string& name : {leftover, inUse, folder / "a.new"}) WriteFile(name, "");
  files.RemoveLeftovers(FilePath(folder / ""));
  EXPECT_TRUE(!files.Exists(FilePath(leftover)) && files.Exists(FilePath(inUse)) &&
              files.Exists(FilePath(folder / "a.new")));
}

TEST(LinuxFiles, FollowsLinks) {
  const TempFolder folder;
  LinuxFiles files;
  const std::string real = folder / "real.dat", link = folder / "link.dat";
  WriteFile(real, "a longer old text");
  WriteFile(folder / "from.dat", "moved");
  std::filesystem::create_symlink(real, link);
  files.Replace(FilePath(link), "new");
  EXPECT_EQ(ReadFile(real), "new");
  std::filesystem::remove(real);
  files.Replace(FilePath(link), "new again");
  EXPECT_EQ(ReadFile(real), "new again");
  // A link within the folder stays, the file behind it is replaced, also by and of another link.
  EXPECT_EQ(files.Move(FilePath(folder / "from.dat"), FilePath(link)).Utf8(), real);
  files.Link("/elsewhere", FilePath(real));
  EXPECT_EQ(std::filesystem::read_symlink(real), "/elsewhere");
  WriteFile(folder / "from.dat", "moved");
  files.Move(FilePath(folder / "from.dat"), FilePath(link));
  EXPECT_TRUE(std::filesystem::is_symlink(link) && !std::filesystem::is_symlink(real));
  EXPECT_EQ(ReadFile(link), "moved");
}

TEST(LinuxShell, FindsTheDesktopFolder) {
  const TempFolder home;
  setenv("HOME", (home / "").c_str(), 1);
  setenv("XDG_CONFIG_HOME", "relative/is/ignored", 1);
  EXPECT_EQ(LinuxShell().SpecialFolder(kDesktopFolder).Utf8(), home / "Desktop");
  std::filesystem::create_directory(home / ".config");
  WriteFile(home / ".config/user-dirs.dirs",
            "# XDG_DESKTOP_DIR=\"/no\"\nXDG_DESKTOP_DIR=\"$HOME/My \\\"Desk\\\"/\"\n");
  EXPECT_EQ(LinuxShell().SpecialFolder(kDesktopFolder).Utf8(), home / "My \"Desk\"");
}

TEST(LinuxShell, StartsPrograms) {
  const TempFolder folder;
  LinuxShell shell;
  WriteFile(folder / "updater.exe", "#!/bin/sh\necho started > \"$0.ran\"\n");
  shell.StartProgram(FilePath(folder / "updater.exe"));
  wait(nullptr);
  EXPECT_EQ(ReadFile(folder / "updater.exe.ran"), "started\n");
  WriteFile(folder / "page.exe", "<html>not found</html>");
  EXPECT_THROW(shell.StartProgram(FilePath(folder / "page.exe")), RuntimeError);
}

TEST(RandomGenerator, SameSeedGivesDifferentNumbers) {
  RandomGenerator one, other;
  one.Seed(45296.25F);
  other.Seed(45296.25F);
  const double first = one.Next();
  EXPECT_NE(first, other.Next());
  EXPECT_TRUE(first >= 0 && first < 1) << first;
}

TEST(LinuxShell, CopiesASystemEntryOutsideOfItsFolder) {
  namespace fs = std::filesystem;
  const TempFolder folder;
  fs::create_directories(folder / "share/applications");
  fs::create_directory(folder / "Desktop");
  WriteFile(folder / "share/applications/benevix.desktop", "entry");
  setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
  setenv("XDG_DATA_DIRS", (folder / "share").c_str(), 1);
  LinuxShell shell;
  shell.CopyIntoFolder(shell.SpecialFolder(kProgramsFolder) / "benevix/benevix.desktop",
                       FilePath(folder / "Desktop"));
  EXPECT_EQ(ReadFile(folder / "Desktop/benevix.desktop"), "entry");
  EXPECT_EQ(access((folder / "Desktop/benevix.desktop").c_str(), X_OK), 0);
}

TEST(MachineConfigFile, IsTheFirstFoldersThatHasIt) {
  namespace fs = std::filesystem;
  const TempFolder folder;
  const std::string program = folder / "usr/bin/benevix";
  setenv("XDG_CONFIG_DIRS", ("relative:" + folder / "one:" + folder / "two").c_str(), 1);
  EXPECT_EQ(MachineConfigFile("a"), folder / "one/benevix/a");
  EXPECT_EQ(DeploymentFile(program), folder / "usr/share/benevix/deployment.ini");
  fs::create_directories(folder / "two/benevix");
  WriteFile(folder / "two/benevix/deployment.ini", "");
  EXPECT_EQ(DeploymentFile(program), folder / "two/benevix/deployment.ini");
  // A folder that runs where it stands has its own.
  fs::create_directories(folder / "usr/bin/Resources");
  EXPECT_EQ(DeploymentFile(program), folder / "usr/bin/deployment.ini");
  setenv("XDG_CONFIG_DIRS", "", 1);
  EXPECT_EQ(MachineConfigFile("no such"), "/etc/xdg/benevix/no such");
}

TEST(ProgramFolder, IsTheExecutablesFolderWhenItHasWritableResources) {
  namespace fs = std::filesystem;
  const TempFolder folder;
  const std::string user = folder / "data/benevix";
  setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
  fs::create_directories(folder / "opt/Resources");
  EXPECT_EQ(InstalledFolder(folder / "opt/benevix"), folder / "opt");
  EXPECT_EQ(ProgramFolder(folder / "opt/benevix"), folder / "opt");
  // As installed by the package.
  EXPECT_EQ(InstalledFolder(folder / "usr/bin/benevix"), folder / "usr/share/benevix");
  EXPECT_EQ(ProgramFolder(folder / "usr/bin/benevix"), user);

  fs::permissions(folder / "opt/Resources", fs::perms(0555));
  int status = 1;
  if (fork() == 0) {  // without root rights, which ignore the permissions
    const bool isNotRoot = getuid() != 0 || setuid(65534) == 0;
    _exit(isNotRoot && ProgramFolder(folder / "opt/benevix") == user ? 0 : 1);
  }
  wait(&status);
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace benevix
