#pragma once

#include <string>
#include <vector>

#include "platform/message_boxes.h"

namespace benevix {

// Records each message box, as "title|text" with its icon and buttons, and answers it with
// `answer`.
class RecordingBoxes : public MessageBoxes {
 public:
  struct Box {
    std::string text;
    BoxIcon icon;
    BoxButtons buttons;
  };

  BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                 BoxButtons buttons) override {
    shown.push_back({title + "|" + text, icon, buttons});
    return buttons == BoxButtons::OK ? BoxAnswer::OK : answer;
  }

  FilePath AskWhereToSave(const std::string& /*title*/, const std::string& /*name*/) override {
    return {};
  }

  std::vector<Box> shown;
  BoxAnswer answer = BoxAnswer::No;
};

}  // namespace benevix
