#pragma once

#include <string>

#include "base/file_path.h"

namespace benevix {

enum class BoxIcon { None, Information, Question, Critical };
// The box begins on its first button, which Enter presses; that of NoByDefault, Yes and No too, on
// No: a key pressed once too often must not pay or replace anything.
enum class BoxButtons { OK, YesNo, NoByDefault };
enum class BoxAnswer { OK, Yes, No };

// Modal message boxes: each returns when the user has answered.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                         BoxButtons buttons) = 0;
  // Asks under which name a file shall be saved; `name`, with its ending, is proposed. Empty when
  // the user wants none.
  virtual FilePath AskWhereToSave(const std::string& title, const std::string& name) = 0;
};

}  // namespace benevix
