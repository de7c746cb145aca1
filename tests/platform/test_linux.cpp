#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/runtime_error.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_shell.h"
#include "platform/linux/program_folder.h"
#include "platform/linux/random_generator.h"
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
  files.Append(history, "second\r\n");
  EXPECT_EQ(files.ReadAll(history), "first\r\nsecond\r\n");
}

TEST(LinuxFiles, FollowsLinks) {
  const TempFolder folder;
  LinuxFiles files;
  const FilePath real(folder / "real.dat"), link(folder / "link.dat"), from(folder / "from.dat");
  const std::string large(3'000'000, 'l');
  WriteFile(real.Utf8(), "a longer old text");
  WriteFile(from.Utf8(), large);
  std::filesystem::create_symlink(real.Utf8(), link.Utf8());
  files.Replace(link, "new");
  EXPECT_EQ(ReadFile(real.Utf8()), "new");
  files.Copy(from, link);
  EXPECT_TRUE(std::filesystem::is_symlink(link.Utf8()));
  EXPECT_THROW(files.Copy(link, real), RuntimeError);  // the same file
  EXPECT_THROW(files.Copy(FilePath(folder / ""), real), RuntimeError);
  EXPECT_EQ(files.ReadAll(real), large);
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
