#pragma once

#include <string>

namespace benevix {

// Folder identifiers of the shell.
inline constexpr int kProgramsFolder = 2;  // where the user's start menu entries stand
inline constexpr int kDesktopFolder = 16;

class Shell {
 public:
  virtual ~Shell() = default;
  // The folder's path, UTF-8; empty for an unknown one.
  [[nodiscard]] virtual std::string SpecialFolder(int folderId) const = 0;
  // What the file name of a shortcut ends in: ".lnk", ".desktop".
  [[nodiscard]] virtual std::string ShortcutExtension() const = 0;
  // Copies a file into a folder under its own name, silently, over an existing one.
  virtual void CopyIntoFolder(const std::string& file, const std::string& folder) = 0;
  // Starts a program; raises RuntimeError when it cannot be started.
  virtual void StartProgram(const std::string& file) = 0;
};

}  // namespace benevix
