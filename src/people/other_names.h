#pragma once

#include <string>

#include "controls/controls.h"
#include "platform/files.h"

namespace benevix {

// The other donor names that the user has typed, one per line in the order of typing.
class OtherNames {
 public:
  OtherNames(Files& files, FilePath file) : files_(files), file_(std::move(file)) {}

  // Adds every line as an entry; a missing or unreadable file adds none.
  void LoadOtherNames(ComboBox& names) const;

  // A failed write is not reported.
  void AppendOtherName(const std::string& name);

 private:
  Files& files_;
  FilePath file_;
};

}  // namespace benevix
