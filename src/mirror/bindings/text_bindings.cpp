// The bindings of boxes that text is typed into.

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <algorithm>

#include "base/text.h"
#include "mirror/bindings/make_binding.h"
#include "mirror/bindings/typed_text.h"
#include "mirror/bindings/undo_keys.h"
#include "mirror/bindings/widget_binding.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

// Lets what the user types into the edit of a box through the box's key filter.
template <class Box>
void FilterTyping(Box& box, QLineEdit& edit, BindingContext& context) {
  ShareUndoKeys(edit);
  edit.setValidator(
      std::make_unique<TypedText>(
          edit,
          TypedText::Rules{.current = [&box] { return ToQString(box.text); },
                           .accepted =
                               [&box, &context](const QString& typed) {
                                 std::string bytes = FromQString(typed);
                                 std::erase_if(bytes, [](char c) { return c >= 0 && c < ' '; });
                                 return ToQString(context.input.Accepted(box, bytes));
                               },
                           // Later, since the edit must not be written in the middle of its change.
                           .refused =
                               [&box, &edit, &context] {
                                 QMetaObject::invokeMethod(
                                     &edit, [&box, &context] { context.input.Refuse(box); },
                                     Qt::QueuedConnection);
                               },
                           .isApplying = [&context] { return context.applying; }})
          .release());
  QObject::connect(&edit, &QLineEdit::textEdited, &edit, [&box, &context](const QString& text) {
    context.input.Type(box, FromQString(text));
  });
}

class TextBoxBinding : public WidgetBinding<TextBox, QLineEdit> {
 public:
  TextBoxBinding(TextBox& box, QLineEdit& edit, BindingContext& context)
      : WidgetBinding(box, edit, context),
        colors_(edit, context.scheme),
        designPoints_(DesignPoints()),
        selections_(box.selections) {
    FilterTyping(box, edit, context);
  }

 private:
  void ApplyKind() override {
    const QString text = ToQString(control_.text);
    if (widget_.text() != text) widget_.setText(text);
    const TextBox design;
    colors_.Apply({{QPalette::Text, control_.foreColor, design.foreColor}},
                  {{QPalette::Base, control_.backColor, design.backColor}});
    ApplyFont();
    if (selections_ != control_.selections) {
      selections_ = control_.selections;
      SelectAll();
    }
  }

  [[nodiscard]] bool IsMoney() const { return widget_.property("look") == QLatin1String("money"); }

  [[nodiscard]] double DesignPoints() const {
    widget_.ensurePolished();
    return widget_.font().pointSizeF() * (IsMoney() ? kMoneyScale : 1);
  }

  // In a box for amounts a text that is too long for it is drawn smaller, so that none of its
  // digits is hidden.
  void ApplyFont() {
    QFont font = widget_.font();
    font.setBold(control_.fontBold);
    font.setPointSizeF(designPoints_ * control_.fontSize / TextBox().fontSize);
    if (IsMoney()) {
      constexpr int inset = 2 * (8 + 2 + 2);  // pixels: padding, frame, and the edit's own margin
      const int room = widget_.width() - inset;
      while (font.pointSizeF() > 2 && QFontMetrics(font).horizontalAdvance(widget_.text()) > room) {
        font.setPointSizeF(font.pointSizeF() - 0.5);
      }
    }
    if (font != widget_.font()) widget_.setFont(font);
  }

  void SelectAll() {
    widget_.selectAll();
    // The press of the mouse that gave the focus places the caret only after this.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
      QTimer::singleShot(0, &widget_, &QLineEdit::selectAll);
    }
  }

  ControlColors colors_;
  double designPoints_;
  int selections_;
};

// A box of several lines. In the struct they end with CR LF.
class MultiLineBinding : public WidgetBinding<TextBox, QPlainTextEdit> {
 public:
  MultiLineBinding(TextBox& box, QPlainTextEdit& edit, BindingContext& context)
      : WidgetBinding(box, edit, context) {
    QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [this] {
      if (context_.applying) return;
      bool lost = false;
      std::string text = FromUtf8(widget_.toPlainText().toStdString(), &lost);
      for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) {
        text.insert(at, 1, '\r');
      }
      // A character that the code page lacks is not in `text`; it is taken out of the widget too.
      if (text != control_.text) {
        context_.input.Type(control_, text);
      } else {
        ApplyKind();
      }
      if (lost) context_.input.Refuse(control_);
    });
  }

 private:
  void ApplyKind() override {
    QString text = ToQString(control_.text);
    text.remove(QLatin1Char('\r'));
    if (widget_.toPlainText() == text) return;
    const QSignalBlocker quiet(widget_);
    const int position = widget_.textCursor().position();
    widget_.setPlainText(text);
    QTextCursor cursor = widget_.textCursor();
    cursor.setPosition(std::min(position, static_cast<int>(text.size())));
    widget_.setTextCursor(cursor);
  }
};

// A box that only chooses opens its list for the keys that would choose unseen, and leaves the
// wheel to the window: what is chosen is chosen in the list.
class ListTyping : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Wheel) return true;
    if (event->type() != QEvent::KeyPress) return false;
    auto& combo = *static_cast<QComboBox*>(watched);
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool types = !key.text().isEmpty() && key.text()[0].isPrint();
    const bool moves = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down ||
                       (key.key() >= Qt::Key_Home && key.key() <= Qt::Key_PageDown);
    if (!types && !moves) return false;
    combo.showPopup();
    if (types && !key.text()[0].isSpace()) QCoreApplication::sendEvent(combo.view(), event);
    return true;
  }
};

class ComboBinding : public WidgetBinding<ComboBox, QComboBox> {
 public:
  ComboBinding(ComboBox& combo, QComboBox& widget, BindingContext& context)
      : WidgetBinding(combo, widget, context) {
    QObject::connect(&widget, &QComboBox::activated, &widget, [this](int index) {
      if (!context_.applying) context_.input.Pick(control_, index);
    });
    if (!combo.editable) {
      widget.installEventFilter(&typing_);
      return;
    }
    widget.lineEdit()->setAccessibleName(widget.accessibleName());
    widget.setCompleter(nullptr);
    FilterTyping(combo, *widget.lineEdit(), context);
  }

 private:
  void ApplyKind() override {
    ApplyList();
    const QString text = ToQString(control_.text);
    if (widget_.currentText() == text) return;
    if (control_.editable) {
      widget_.setEditText(text);
    } else {
      widget_.setCurrentIndex(widget_.findText(text));
    }
  }

  void ApplyList() {
    if (listed_ == control_.list) return;
    listed_ = control_.list;
    widget_.clear();
    for (const std::string& entry : listed_) widget_.addItem(ToQString(entry));
    widget_.setCurrentIndex(-1);
  }

  ListTyping typing_;
  std::vector<std::string> listed_;
};

}  // namespace

std::unique_ptr<Binding> MakeTextBinding(const NamedControl& control, QWidget& widget,
                                         BindingContext& context) {
  return MakeFirst<TextBoxBinding, MultiLineBinding, ComboBinding>(control, widget, context);
}

}  // namespace benevix
