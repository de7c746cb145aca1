#include "mirror/mirror/qt_message_boxes.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>
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

// The window that the box stands over; null when none is shown.
QWidget* WindowBelow() {
  QWidget* const active = QApplication::activeWindow();
  return active != nullptr && active->isVisible() ? active : nullptr;
}

// Messages are laid out with blanks for a box of its own font; here the lines are aligned on the
// left.
QString Lines(const std::string& text) {
  QStringList lines = Drawn(text).split(QLatin1Char('\n'));
  for (QString& line : lines) line = line.simplified();
  return lines.join(QLatin1Char('\n')).trimmed();
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(const std::string& title, const std::string& text, BoxIcon icon,
                               BoxButtons buttons) {
  const bool asks = buttons != BoxButtons::OK;
  // This updates the windows: one that closes now must not close the box with it.
  const WaitScope wait(waits_);
  QMessageBox box(Icon(icon), TitleOf(title), Lines(text),
                  asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, WindowBelow());
  box.setTextFormat(Qt::PlainText);
  if (asks) box.setEscapeButton(QMessageBox::No);
  if (buttons == BoxButtons::NoByDefault) box.setDefaultButton(QMessageBox::No);
  if (onShown) QTimer::singleShot(0, &box, [&] { onShown(box); });
  const int answer = box.exec();
  if (!asks) return BoxAnswer::OK;
  return answer == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

FilePath QtMessageBoxes::AskWhereToSave(const std::string& title, const std::string& name) {
  const WaitScope wait(waits_);
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QString proposed = ToQString(name);
  QFileDialog dialog(WindowBelow(), Drawn(title), folder.filePath(proposed));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QFileInfo(proposed).suffix());
  if (onFileDialogShown) QTimer::singleShot(0, &dialog, [&] { onFileDialogShown(dialog); });
  if (dialog.exec() != QDialog::Accepted) return {};
  return FilePath(dialog.selectedFiles().value(0).toStdString());
}

}  // namespace benevix
