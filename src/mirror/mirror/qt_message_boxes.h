#pragma once

#include <functional>

#include "platform/message_boxes.h"
#include "platform/waits.h"

class QFileDialog;
class QMessageBox;

namespace benevix {

// Real message boxes, modal over all windows.
class QtMessageBoxes : public MessageBoxes {
 public:
  explicit QtMessageBoxes(Waits& waits) : waits_(waits) {}

  BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                 BoxButtons buttons) override;
  FilePath AskWhereToSave(const std::string& title, const std::string& name) override;

  // Called once the box is on the screen.
  std::function<void(QMessageBox&)> onShown;
  std::function<void(QFileDialog&)> onFileDialogShown;

 private:
  Waits& waits_;
};

}  // namespace benevix
