#pragma once

#include <string>

namespace benevix {

enum class BoxIcon { None, Information, Question, Critical };
enum class BoxButtons { OK, YesNo };
enum class BoxAnswer { OK, Yes, No };

// Modal message boxes: Show returns when the user has answered.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                         BoxButtons buttons) = 0;
};

}  // namespace benevix
