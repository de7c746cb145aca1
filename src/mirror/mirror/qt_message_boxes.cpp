#include "mirror/mirror/qt_message_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "mirror/look/texts.h"

namespace benevix {
namespace {

QMessageBox::Icon Icon(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::Critical:
      return QMessageBox::Critical;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(const std::string& title, const std::string& text, BoxIcon icon,
                               BoxButtons buttons) {
  const bool asks = buttons != BoxButtons::OK;
  // This updates the windows: one that closes now must not close the box with it.
  const WaitScope wait(waits_);
  QWidget* const active = QApplication::activeWindow();
  QMessageBox box(Icon(icon), Drawn(title), Drawn(text),
                  asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                  active != nullptr && active->isVisible() ? active : nullptr);
  box.setTextFormat(Qt::PlainText);
  if (asks) box.setEscapeButton(QMessageBox::No);
  if (buttons == BoxButtons::NoByDefault) box.setDefaultButton(QMessageBox::No);
  if (onShown) QTimer::singleShot(0, &box, [&] { onShown(box); });
  const int answer = box.exec();
  if (!asks) return BoxAnswer::OK;
  return answer == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

}  // namespace benevix
