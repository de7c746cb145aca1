#pragma once

#include <string>

namespace benevix {

// Folder identifiers of the shell.
inline constexpr int kProgramsFolder = 2;  // the user's start menu entries
inline constexpr int kDesktopFolder = 16;

class Shell {
 public:
  virtual ~Shell() = default;
  // The folder's path (UTF-8), empty for an unknown identifier.
  [[nodiscard]] virtual std::string SpecialFolder(int folderId) const = 0;
  // The file name extension of shortcuts: ".lnk", ".desktop".
  [[nodiscard]] virtual std::string ShortcutExtension() const = 0;
  // Copies a file into a folder under its own name. Overwrites; ignores errors.
  virtual void CopyIntoFolder(const std::string& file, const std::string& folder) = 0;
  // Raises RuntimeError when the program cannot be started.
  virtual void StartProgram(const std::string& file) = 0;
};

}  // namespace benevix
