#pragma once

#include <QPoint>
#include <Qt>

#include "mirror/mirror/qt_message_boxes.h"
#include "player/world_records.h"

class QWidget;

namespace benevix {

// A click of the mouse, through the widget's window.
void ClickAt(QWidget& widget, QPoint position, Qt::MouseButton button = Qt::LeftButton);

// The box on the screen is answered by its own button, and a file gets its name in the dialog.
class ClickedBoxes : public MessageBoxes {
 public:
  ClickedBoxes(Waits& waits, BoxAnswers& answers) : real_(waits), answers_(answers) {}

  BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                 BoxButtons buttons) override;
  FilePath AskWhereToSave(const std::string& title, const std::string& name) override;

 private:
  QtMessageBoxes real_;
  BoxAnswers& answers_;
};

}  // namespace benevix
