#include "player/widget_properties.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableView>

#include "mirror/look/texts.h"
#include "player/properties.h"
#include "player/widget_colors.h"

namespace benevix {
namespace {

using Text = std::optional<std::string>;

// What the code page cannot say stays visible as a fault.
Text Shown(const QString& text) {
  const std::string bytes = FromQString(text);
  return ToQString(bytes) == text ? bytes : text.toStdString();
}

// The caption without regard to where the mnemonic's mark is drawn.
Text Caption(const QString& shown, const Text& designed) {
  const auto unmarked = [](QString text) { return text.remove(QLatin1Char('&')); };
  if (designed && unmarked(Drawn(*designed)) == unmarked(shown)) return designed;
  return Shown(shown);
}

Text ReadAction(const QAction& action, const std::string& property, const Text& fromStruct) {
  if (property == "Caption") {
    return Caption(action.text().replace(QLatin1String("&&"), QLatin1String("&")), fromStruct);
  }
  if (property == "Checked") return BooleanText(action.isChecked());
  // The toolkit disables the menus of a disabled window.
  const bool ofMenu = action.menu() != nullptr && !action.menu()->parentWidget()->isEnabled();
  if (property == "Enabled" && !ofMenu) return BooleanText(action.isEnabled());
  return fromStruct;
}

Text ReadList(const QTableView& view, const ListView& list, const std::string& property,
              const Text& fromStruct) {
  if (property == "Count" && !list.shownRows) return std::to_string(view.model()->rowCount());
  if (property == "Selected" && list.PlaceOf(list.selected) > 0) {
    const QModelIndex current = view.currentIndex();
    return std::to_string(current.isValid() ? list.RowAt(current.row() + 1) : 0);
  }
  const auto* const emptyText = view.viewport()->findChild<QLabel*>();
  if (property == "EmptyText") return emptyText->isHidden() ? "" : Shown(emptyText->text());
  const auto cell = CellIn(property);
  if (!cell || list.PlaceOf(cell->row) == 0) return fromStruct;
  return Shown(view.model()->index(list.PlaceOf(cell->row) - 1, cell->column).data().toString());
}

Text ReadTable(const QTableView& view, const std::string& property, const Text& fromStruct) {
  if (property == "Count") return std::to_string(view.model()->rowCount());
  if (property == "Selected") return std::to_string(view.currentIndex().row() + 1);
  const auto cell = CellIn(property);
  if (!cell || !view.model()->hasIndex(cell->row - 1, cell->column)) return fromStruct;
  return Shown(view.model()->index(cell->row - 1, cell->column).data().toString());
}

Text ReadCombo(const QComboBox& combo, const std::string& property, const Text& fromStruct) {
  if (property == "Text") return Shown(combo.currentText());
  if (property == "Count") return std::to_string(combo.count());
  const auto index = IndexIn(property, "List");
  return index ? Shown(combo.itemText(*index)) : fromStruct;
}

Text ReadWidget(const QWidget& widget, const std::string& property, const Text& fromStruct) {
  if (property == "Enabled") return BooleanText(widget.isEnabledTo(widget.parentWidget()));
  if (property == "Visible") return BooleanText(!widget.isHidden());
  if (property == "ToolTip") return Shown(widget.toolTip());
  if (property == "Text") {
    const auto* const multiLine = qobject_cast<const QPlainTextEdit*>(&widget);
    if (multiLine != nullptr) {
      return Shown(multiLine->toPlainText().replace(QLatin1String("\n"), QLatin1String("\r\n")));
    }
  }
  if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
    return ReadCombo(*combo, property, fromStruct);
  }
  if (property == "Text") return Shown(WidgetText(widget));
  if (property == "Caption") return Caption(WidgetText(widget), fromStruct);
  if (property == "Value") {
    if (const auto* const option = qobject_cast<const QRadioButton*>(&widget)) {
      return BooleanText(option->isChecked());
    }
    if (const auto* const box = qobject_cast<const QCheckBox*>(&widget)) {
      return box->isChecked() ? "1" : "0";
    }
  }
  if (const auto* const bar = qobject_cast<const QScrollBar*>(&widget)) {
    if (property == "Max") return std::to_string(bar->maximum());
    if (property == "Value") return std::to_string(bar->value());
  }
  if (property == "FontBold") return BooleanText(widget.font().bold());
  return fromStruct;
}

Text ReadWindow(const QWidget& widget, const std::string& property, const Text& fromStruct) {
  if (property == "Caption") {
    return fromStruct && widget.windowTitle() == TitleOf(*fromStruct) ? fromStruct
                                                                      : Shown(widget.windowTitle());
  }
  if (property == "Shown") return BooleanText(widget.isVisible());
  if (property == "Enabled") return BooleanText(widget.isEnabled());
  if (property == "MousePointer") {
    return widget.cursor().shape() == Qt::WaitCursor ? "Hourglass" : "Default";
  }
  return fromStruct;
}

}  // namespace

QString WidgetText(const QWidget& widget) {
  if (const auto* const edit = qobject_cast<const QLineEdit*>(&widget)) return edit->text();
  if (const auto* const edit = qobject_cast<const QPlainTextEdit*>(&widget)) {
    return edit->toPlainText();
  }
  if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
    return combo->currentText();
  }
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
    return button->text();
  }
  if (const auto* const frame = qobject_cast<const QGroupBox*>(&widget)) return frame->title();
  return {};
}

std::optional<std::string> ReadWidgetProperty(Program& program, WindowBinding* binding,
                                              const Target& target, const std::string& property,
                                              Scheme scheme) {
  const Text fromStruct = ReadProperty(program.TheDesk(), target, property);
  if (binding == nullptr || !fromStruct) return fromStruct;
  if (target.control == nullptr) return ReadWindow(binding->Widget(), property, fromStruct);
  const QAction* const action = binding->ActionOf(*target.control, target.element);
  if (property == "Exists") return BooleanText(action != nullptr);
  if (action != nullptr) return ReadAction(*action, property, fromStruct);
  QWidget* const widget = binding->WidgetOf(target.control->Base());
  if (widget == nullptr) return fromStruct;
  const auto* const view = qobject_cast<const QTableView*>(widget);
  if (const auto* const list = target.control->As<ListView>(); list != nullptr && view != nullptr) {
    const Text text = ReadList(*view, *list, property, fromStruct);
    if (text != fromStruct) return text;
  }
  if (target.control->As<Table>() != nullptr && view != nullptr) {
    const Text text = ReadTable(*view, property, fromStruct);
    if (text != fromStruct) return text;
  }
  if (property == "Note") return Shown(binding->NoteOf(*widget));
  const Text color = ReadWidgetColor(*target.control, *widget, property, scheme);
  return color ? color : ReadWidget(*widget, property, fromStruct);
}

}  // namespace benevix
