#pragma once

#include <string>

#include "base/file_path.h"

namespace benevix {

// Folder identifiers of the shell.
inline constexpr int kProgramsFolder = 2;  // the user's start menu entries
inline constexpr int kDesktopFolder = 16;

class Shell {
 public:
  virtual ~Shell() = default;
  // The folder's path, empty for an unknown identifier.
  [[nodiscard]] virtual FilePath SpecialFolder(int folderId) const = 0;
  // The file name extension of shortcuts: ".lnk", ".desktop".
  [[nodiscard]] virtual std::string ShortcutExtension() const = 0;
  // Copies a file into a folder under its own name. Overwrites; ignores errors.
  virtual void CopyIntoFolder(const FilePath& file, const FilePath& folder) = 0;
  // Raises RuntimeError when the program cannot be started.
  virtual void StartProgram(const FilePath& file) = 0;
  // Shows a web address in the user's own browser; false when none can be opened.
  virtual bool OpenInBrowser(const std::string& address) = 0;
};

}  // namespace benevix
