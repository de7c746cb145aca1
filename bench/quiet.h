#pragma once

#include <stdexcept>
#include <string>

#include "platform/message_boxes.h"
#include "platform/waits.h"

namespace benevix {

// A program without windows.
class NoWaits : public Waits {
 public:
  void Begin() override {}
  void End() override {}
  void DoEvents() override {}
};

// The benchmark is asked nothing.
class NoBoxes : public MessageBoxes {
 public:
  BoxAnswer Show(const std::string& /*title*/, const std::string& text, BoxIcon /*icon*/,
                 BoxButtons /*buttons*/) override {
    throw std::runtime_error("an unexpected message: " + text);
  }
  FilePath AskWhereToSave(const std::string& /*title*/, const std::string& /*name*/) override {
    return {};
  }
};

}  // namespace benevix
