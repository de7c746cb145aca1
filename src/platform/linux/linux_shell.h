#pragma once

#include <functional>
#include <utility>

#include "platform/shell.h"

namespace benevix {

// Desktop shell by the freedesktop.org conventions: start menu entries are in the user's
// "applications" folder, user-dirs.dirs names the desktop folder. An entry that the user lacks is
// copied from the system's "applications" folders.
class LinuxShell : public Shell {
 public:
  // Opens a web address by the desktop's ways; false when that cannot be done.
  using Opener = std::function<bool(const std::string& address)>;
  explicit LinuxShell(Opener open = {}) : open_(std::move(open)) {}

  [[nodiscard]] FilePath SpecialFolder(int folderId) const override;
  [[nodiscard]] std::string ShortcutExtension() const override { return ".desktop"; }
  void CopyIntoFolder(const FilePath& file, const FilePath& folder) override;
  // Makes the file executable first. The started program outlives this one.
  void StartProgram(const FilePath& file) override;
  bool OpenInBrowser(const std::string& address) override { return open_ && open_(address); }

 private:
  Opener open_;
};

}  // namespace benevix
