#include "player/clicked_boxes.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace benevix {

void ClickAt(QWidget& widget, QPoint position, Qt::MouseButton button) {
  QWidget* const top = widget.window();
  QTest::mouseClick(top->windowHandle(), button, Qt::NoModifier, widget.mapTo(top, position));
}

BoxAnswer ClickedBoxes::Show(const std::string& title, const std::string& text, BoxIcon icon,
                             BoxButtons buttons) {
  const BoxAnswer answer = answers_.Take({title, text, icon, buttons});
  real_.onShown = [answer](QMessageBox& box) {
    const auto wanted = answer == BoxAnswer::Yes  ? QMessageBox::Yes
                        : answer == BoxAnswer::No ? QMessageBox::No
                                                  : QMessageBox::Ok;
    if (QAbstractButton* const button = box.button(wanted)) {
      ClickAt(*button, button->rect().center());
    }
  };
  return real_.Show(title, text, icon, buttons);
}

FilePath ClickedBoxes::AskWhereToSave(const std::string& title, const std::string& name) {
  real_.onFileDialogShown = [this](QFileDialog& dialog) {
    const FilePath file = answers_.TakeFile();
    if (file.IsEmpty()) return dialog.reject();
    dialog.findChild<QLineEdit*>()->setText(QString::fromStdString(file.Utf8()));
    auto* const buttons = dialog.findChild<QDialogButtonBox*>();
    QAbstractButton* const save = buttons->button(QDialogButtonBox::Save);
    ClickAt(*save, save->rect().center());
  };
  return real_.AskWhereToSave(title, name);
}

}  // namespace benevix
