#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>

#include "base/format.h"
#include "base/text.h"
#include "window/binding.h"
#include "window/list_binding.h"
#include "window/mnemonics.h"
#include "window/money_bar_widget.h"
#include "window/page_viewer/page_view_host.h"
#include "window/shape_widget.h"
#include "window/texts.h"
#include "window/typed_text.h"

namespace benevix {
namespace {

// What all widgets have in common.
void ApplyBase(const Control& control, QWidget& widget) {
  if (widget.isEnabledTo(widget.parentWidget()) != control.enabled) {
    widget.setEnabled(control.enabled);
  }
  if (widget.isHidden() == control.visible) widget.setVisible(control.visible);
  const QString tip = Drawn(control.toolTip);
  if (widget.toolTip() != tip) widget.setToolTip(tip);
}

// A colour of the struct over the theme's; the design colour leaves the theme's. Disabled texts
// keep the theme's look.
void SetText(QPalette& palette, QPalette::ColorRole role, Color color, Color design,
             Scheme scheme) {
  if (color == design) return;
  palette.setColor(QPalette::Active, role, RoleColor(color, scheme));
  palette.setColor(QPalette::Inactive, role, RoleColor(color, scheme));
}

void SetGround(QPalette& palette, QPalette::ColorRole role, Color color, Color design,
               Scheme scheme) {
  if (color != design) palette.setColor(role, RoleColor(color, scheme));
}

void ApplyPalette(QWidget& widget, const QPalette& palette) {
  if (widget.palette() != palette) widget.setPalette(palette);
}

template <class C, class W>
class Bound : public Binding {
 public:
  Bound(C& control, W& widget, BindingContext& context)
      : control_(control), widget_(widget), context_(context) {}
  [[nodiscard]] QWidget* Widget() const override { return &widget_; }

 protected:
  C& control_;
  W& widget_;
  BindingContext& context_;
};

class TextBoxBinding : public Bound<TextBox, QLineEdit> {
 public:
  TextBoxBinding(TextBox& box, QLineEdit& edit, BindingContext& context)
      : Bound(box, edit, context), theme_(edit.palette()), selections_(box.selections) {
    edit.setValidator(std::make_unique<TypedText>(
                          &edit, [&box] { return ToQString(box.text); },
                          [&box, &context](QChar c) {
                            const int byte = CodePageByte(c.unicode());
                            return byte >= ' ' &&
                                   context.input.Accepts(box, static_cast<char>(byte));
                          },
                          [&context] { return context.applying; })
                          .release());
    QObject::connect(&edit, &QLineEdit::textEdited, &edit, [&](const QString& text) {
      context_.input.Type(control_, FromQString(text));
    });
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString text = ToQString(control_.text);
    if (widget_.text() != text) widget_.setText(text);
    const TextBox design;
    QPalette palette = theme_;
    SetText(palette, QPalette::Text, control_.foreColor, design.foreColor, context_.scheme);
    SetGround(palette, QPalette::Base, control_.backColor, design.backColor, context_.scheme);
    ApplyPalette(widget_, palette);
    QFont font = widget_.font();
    if (font.bold() != control_.fontBold) {
      font.setBold(control_.fontBold);
      widget_.setFont(font);
    }
    if (selections_ != control_.selections) {
      selections_ = control_.selections;
      SelectAll();
    }
  }

 private:
  void SelectAll() {
    widget_.selectAll();
    // The press that gave the focus goes on to place the caret.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
      QTimer::singleShot(0, &widget_, &QLineEdit::selectAll);
    }
  }

  QPalette theme_;
  int selections_;
};

// A box of several lines; the code page writes their ends as CR LF.
class MultiLineBinding : public Bound<TextBox, QPlainTextEdit> {
 public:
  MultiLineBinding(TextBox& box, QPlainTextEdit& edit, BindingContext& context)
      : Bound(box, edit, context) {
    QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [this] {
      if (context_.applying) return;
      std::string text = FromQString(widget_.toPlainText());
      for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) {
        text.insert(at, 1, '\r');
      }
      // What the code page lacks is not taken; Apply takes it out of the widget again.
      if (text != control_.text) {
        context_.input.Type(control_, text);
      } else {
        ApplyText();
      }
    });
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    ApplyText();
  }

 private:
  void ApplyText() {
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

class LabelBinding : public Bound<Label, QLabel> {
 public:
  LabelBinding(Label& label, QLabel& widget, BindingContext& context)
      : Bound(label, widget, context), theme_(widget.palette()) {}

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString caption = Drawn(control_.caption);
    const QString text =
        TakesMnemonic() ? WithMnemonic(caption, mnemonic_) : WithoutMnemonic(caption);
    if (widget_.text() != text) {
      widget_.setText(text);
      if (IsFree()) widget_.adjustSize();
    }
    QPalette palette = theme_;
    SetText(palette, QPalette::WindowText, control_.foreColor, Label().foreColor, context_.scheme);
    ApplyPalette(widget_, palette);
    if (IsFree()) Place();
  }

  // The letter goes to the box that the label names.
  [[nodiscard]] bool TakesMnemonic() const override {
    return widget_.buddy() != nullptr && widget_.buddy()->focusPolicy() != Qt::NoFocus;
  }
  void SetMnemonic(QChar letter) override { mnemonic_ = letter; }

 private:
  // A label in a panel without a layout is moved by the program.
  [[nodiscard]] bool IsFree() const {
    return widget_.parentWidget() != nullptr && widget_.parentWidget()->layout() == nullptr &&
           widget_.parentWidget()->objectName().startsWith(QLatin1String("Label"));
  }

  QPalette theme_;
  QChar mnemonic_;

  void Place() {
    const QWidget& track = *widget_.parentWidget();
    if (widget_.wordWrap()) {
      if (QLayout* const layout = widget_.window()->layout()) layout->activate();
      widget_.resize(track.width(),
                     std::max(track.height(), widget_.heightForWidth(track.width())));
      control_.height = widget_.height() * kTwipsPerPixel;
    }
    widget_.move(
        control_.left / kTwipsPerPixel,
        control_.top / kTwipsPerPixel +
            (widget_.wordWrap() ? 0 : std::max(0, (track.height() - widget_.height()) / 2)));
  }
};

class ButtonBinding : public Bound<Button, QPushButton> {
 public:
  ButtonBinding(Button& button, QPushButton& widget, BindingContext& context)
      : Bound(button, widget, context) {
    widget.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&widget, &QPushButton::clicked, &widget,
                     [this] { context_.input.Click(control_); });
    QObject::connect(&widget, &QWidget::customContextMenuRequested, &widget,
                     [this](const QPoint& place) {
                       context_.popUpPlace = widget_.mapToGlobal(place);
                       context_.input.MouseUp(control_, MouseButton::Right);
                       context_.popUpPlace = {};
                     });
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString text = WithMnemonic(Drawn(control_.caption), mnemonic_);
    if (widget_.text() != text) widget_.setText(text);
  }

  [[nodiscard]] bool TakesMnemonic() const override { return true; }
  void SetMnemonic(QChar letter) override { mnemonic_ = letter; }

 private:
  QChar mnemonic_;
};

class OptionBinding : public Bound<OptionButton, QRadioButton> {
 public:
  OptionBinding(OptionButton& option, QRadioButton& widget, BindingContext& context)
      : Bound(option, widget, context), theme_(widget.palette()) {
    QObject::connect(&widget, &QRadioButton::clicked, &widget,
                     [this] { context_.input.Choose(control_); });
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString text = Drawn(control_.caption);
    if (widget_.text() != text) widget_.setText(text);
    const bool colored = control_.backColor != OptionButton().backColor;
    QPalette palette = theme_;
    SetGround(palette, widget_.backgroundRole(), control_.backColor, OptionButton().backColor,
              context_.scheme);
    ApplyPalette(widget_, palette);
    widget_.setAutoFillBackground(colored);
    if (widget_.isChecked() == control_.value) return;
    // The last chosen of a group cannot be taken back while the group keeps one chosen.
    widget_.setAutoExclusive(false);
    widget_.setChecked(control_.value);
    widget_.setAutoExclusive(true);
  }

 private:
  QPalette theme_;
};

class CheckBinding : public Bound<CheckBox, QCheckBox> {
 public:
  CheckBinding(CheckBox& box, QCheckBox& widget, BindingContext& context)
      : Bound(box, widget, context) {
    QObject::connect(&widget, &QCheckBox::clicked, &widget,
                     [this] { context_.input.Toggle(control_); });
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString text = Drawn(control_.caption);
    if (widget_.text() != text) widget_.setText(text);
    if (widget_.isChecked() != (control_.value != 0)) widget_.setChecked(control_.value != 0);
  }
};

class ComboBinding : public Bound<ComboBox, QComboBox> {
 public:
  ComboBinding(ComboBox& combo, QComboBox& widget, BindingContext& context)
      : Bound(combo, widget, context) {
    QObject::connect(&widget, &QComboBox::activated, &widget, [this](int index) {
      if (!context_.applying) context_.input.Pick(control_, index);
    });
    if (!combo.editable) return;
    widget.lineEdit()->setAccessibleName(widget.accessibleName());
    widget.setCompleter(nullptr);
    widget.setValidator(std::make_unique<TypedText>(
                            &widget, [&combo] { return ToQString(combo.text); },
                            [](QChar c) { return CodePageByte(c.unicode()) >= ' '; },
                            [&context] { return context.applying; })
                            .release());
    QObject::connect(
        widget.lineEdit(), &QLineEdit::textEdited, &widget,
        [this](const QString& text) { context_.input.Type(control_, FromQString(text)); });
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    ApplyList();
    const QString text = ToQString(control_.text);
    if (widget_.currentText() == text) return;
    if (control_.editable) {
      widget_.setEditText(text);
    } else {
      widget_.setCurrentIndex(widget_.findText(text));
    }
  }

 private:
  void ApplyList() {
    if (listed_ == control_.list) return;
    listed_ = control_.list;
    widget_.clear();
    for (const std::string& entry : listed_) widget_.addItem(ToQString(entry));
    widget_.setCurrentIndex(-1);
  }

  std::vector<std::string> listed_;
};

class FrameBinding : public Bound<Frame, QGroupBox> {
 public:
  FrameBinding(Frame& frame, QGroupBox& widget, BindingContext& context)
      : Bound(frame, widget, context) {
    widget.ensurePolished();  // so that the title's room is measured by its look
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString text = Drawn(control_.caption);
    if (widget_.title() != text) widget_.setTitle(text);
  }
};

class ShapeBinding : public Bound<Shape, ShapeWidget> {
 public:
  using Bound::Bound;
  void Apply() override {
    ApplyBase(control_, widget_);
    const bool filled = control_.fillStyle == 0;
    widget_.SetFill(filled ? RoleColor(control_.fillColor, context_.scheme) : QColor());
    widget_.SetBorder(RoleColor(control_.borderColor, context_.scheme), control_.borderWidth);
    widget_.setAccessibleDescription(ToQString(control_.meaning));
  }
};

class ScrollBarBinding : public Bound<ScrollBar, QScrollBar> {
 public:
  ScrollBarBinding(ScrollBar& bar, QScrollBar& widget, BindingContext& context)
      : Bound(bar, widget, context) {
    QObject::connect(&widget, &QScrollBar::valueChanged, &widget, [this](int value) {
      if (!context_.applying) context_.input.Scroll(control_, value);
    });
  }
  void Apply() override {
    ApplyBase(control_, widget_);
    if (widget_.maximum() != control_.max) widget_.setMaximum(control_.max);
    // Its value is in twips: a key moves the text by lines and pages of it.
    widget_.setSingleStep(widget_.fontMetrics().lineSpacing() * kTwipsPerPixel);
    widget_.setPageStep(widget_.height() * kTwipsPerPixel);
    if (widget_.value() != control_.value) widget_.setValue(control_.value);
  }
};

class ProgressBarBinding : public Bound<ProgressBar, QProgressBar> {
 public:
  using Bound::Bound;
  void Apply() override {
    ApplyBase(control_, widget_);
    if (widget_.maximum() != control_.max) widget_.setMaximum(control_.max);
    if (widget_.value() != control_.value) widget_.setValue(control_.value);
  }
};

class MoneyBarBinding : public Bound<MoneyBar, MoneyBarWidget> {
 public:
  using Bound::Bound;
  void Apply() override {
    ApplyBase(control_, widget_);
    widget_.setAccessibleDescription(ToQString(control_.toolTip));
    std::vector<MoneyBarWidget::Part> parts;
    for (const MoneyBar::Part& part : control_.parts) {
      parts.push_back({UseColor(part.use, context_.scheme),
                       ToQString(part.caption + " " + Format(part.amount, kSumPattern)),
                       part.amount.ToDouble()});
    }
    widget_.SetParts(std::move(parts));
  }
};

class PageViewerBinding : public Bound<PageViewer, QWidget> {
 public:
  PageViewerBinding(PageViewer& viewer, QWidget& widget, BindingContext& context)
      : Bound(viewer, widget, context),
        host_(&widget, widget.window()->findChild<QLabel*>(QStringLiteral("hostLine"))) {}

  void Apply() override {
    ApplyBase(control_, widget_);
    if (navigations_ == control_.navigations) return;
    navigations_ = control_.navigations;
    host_.Navigate(control_.address);
  }

 private:
  PageViewHost host_;
  int navigations_ = 0;
};

// Pictures and other plain widgets.
class PlainBinding : public Bound<Control, QWidget> {
 public:
  using Bound::Bound;
  void Apply() override { ApplyBase(control_, widget_); }
};

// A timer has no widget; it ticks while the struct's is enabled.
class TimerBinding : public Binding {
 public:
  TimerBinding(Timer& timer, BindingContext& context) : timer_(timer), context_(context) {
    QObject::connect(&ticker_, &QTimer::timeout, &ticker_, [this] { context_.input.Tick(timer_); });
  }
  void Apply() override {
    const bool runs = context_.runTimers && timer_.enabled && timer_.interval > 0;
    if (ticker_.isActive() == runs) return;
    if (runs) {
      ticker_.start(timer_.interval);
    } else {
      ticker_.stop();
    }
  }
  [[nodiscard]] QWidget* Widget() const override { return nullptr; }

 private:
  Timer& timer_;
  BindingContext& context_;
  QTimer ticker_;
};

template <class B, class W, class C>
std::unique_ptr<Binding> Bind(C& control, QWidget* widget, BindingContext& context) {
  W* const found = dynamic_cast<W*>(widget);
  if (found == nullptr) return nullptr;
  return std::make_unique<B>(control, *found, context);
}

}  // namespace

bool IsMenu(const NamedControl& control) {
  return control.As<MenuItem>() != nullptr || control.As<MenuArray>() != nullptr;
}

QString WidgetName(const NamedControl& control) {
  QString name = QString::fromStdString(control.name);
  if (control.index >= 0) name += QLatin1Char('_') + QString::number(control.index);
  return name;
}

std::unique_ptr<Binding> MakeBinding(const NamedControl& control, QWidget& window,
                                     BindingContext& context) {
  if (Timer* const timer = control.As<Timer>()) {
    return std::make_unique<TimerBinding>(*timer, context);
  }
  QWidget* const widget = window.findChild<QWidget*>(WidgetName(control));
  if (widget == nullptr) return nullptr;
  if (auto* const c = control.As<TextBox>()) {
    if (c->multiLine) return Bind<MultiLineBinding, QPlainTextEdit>(*c, widget, context);
    return Bind<TextBoxBinding, QLineEdit>(*c, widget, context);
  }
  if (auto* const c = control.As<Label>()) return Bind<LabelBinding, QLabel>(*c, widget, context);
  if (auto* const c = control.As<Button>()) {
    return Bind<ButtonBinding, QPushButton>(*c, widget, context);
  }
  if (auto* const c = control.As<OptionButton>()) {
    return Bind<OptionBinding, QRadioButton>(*c, widget, context);
  }
  if (auto* const c = control.As<CheckBox>()) {
    return Bind<CheckBinding, QCheckBox>(*c, widget, context);
  }
  if (auto* const c = control.As<ComboBox>()) {
    return Bind<ComboBinding, QComboBox>(*c, widget, context);
  }
  if (auto* const c = control.As<Frame>()) {
    return Bind<FrameBinding, QGroupBox>(*c, widget, context);
  }
  if (auto* const c = control.As<Shape>()) {
    return Bind<ShapeBinding, ShapeWidget>(*c, widget, context);
  }
  if (auto* const c = control.As<ScrollBar>()) {
    return Bind<ScrollBarBinding, QScrollBar>(*c, widget, context);
  }
  if (auto* const c = control.As<ProgressBar>()) {
    return Bind<ProgressBarBinding, QProgressBar>(*c, widget, context);
  }
  if (auto* const c = control.As<MoneyBar>()) {
    return Bind<MoneyBarBinding, MoneyBarWidget>(*c, widget, context);
  }
  if (auto* const c = control.As<PageViewer>()) {
    return std::make_unique<PageViewerBinding>(*c, *widget, context);
  }
  if (auto* const c = control.As<ListView>()) return MakeListBinding(*c, *widget, context);
  return std::make_unique<PlainBinding>(control.Base(), *widget, context);
}

}  // namespace benevix
