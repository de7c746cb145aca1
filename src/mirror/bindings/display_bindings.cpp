// What shows something.

#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QProgressBar>
#include <QScrollBar>

#include "base/format.h"
#include "mirror/bindings/bound.h"
#include "mirror/bindings/mnemonics.h"
#include "mirror/look/money_bar_widget.h"
#include "mirror/look/shape_widget.h"
#include "mirror/look/texts.h"
#include "mirror/page_viewer/page_view_host.h"

namespace benevix {
namespace {

class LabelBinding : public Bound<Label, QLabel> {
 public:
  LabelBinding(Label& label, QLabel& widget, BindingContext& context)
      : Bound(label, widget, context), theme_(widget.palette()) {}

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString caption = Drawn(control_.caption);
    const QString text =
        LeadsToABox() ? WithMnemonic(caption, mnemonic_) : WithoutMnemonic(caption);
    if (widget_.text() != text) {
      widget_.setText(text);
      if (IsFree()) widget_.adjustSize();
    }
    QPalette palette = theme_;
    SetText(palette, QPalette::WindowText, control_.foreColor, Label().foreColor, context_.scheme);
    ApplyPalette(widget_, palette);
    if (IsFree()) Place();
  }

  [[nodiscard]] QString MnemonicCaption() const override {
    return LeadsToABox() ? ToQString(control_.caption) : QString();
  }
  void SetMnemonic(QChar letter) override { mnemonic_ = letter; }

 private:
  [[nodiscard]] bool LeadsToABox() const {
    return widget_.buddy() != nullptr && widget_.buddy()->focusPolicy() != Qt::NoFocus;
  }

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
    widget_.SetBorder(RoleColor(control_.borderColor, context_.scheme));
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

}  // namespace

std::unique_ptr<Binding> Bind(Label& label, QWidget& widget, BindingContext& context) {
  return BindTo<LabelBinding, QLabel>(label, widget, context);
}

std::unique_ptr<Binding> Bind(Frame& frame, QWidget& widget, BindingContext& context) {
  return BindTo<FrameBinding, QGroupBox>(frame, widget, context);
}

std::unique_ptr<Binding> Bind(Shape& shape, QWidget& widget, BindingContext& context) {
  return BindTo<ShapeBinding, ShapeWidget>(shape, widget, context);
}

std::unique_ptr<Binding> Bind(ScrollBar& bar, QWidget& widget, BindingContext& context) {
  return BindTo<ScrollBarBinding, QScrollBar>(bar, widget, context);
}

std::unique_ptr<Binding> Bind(ProgressBar& bar, QWidget& widget, BindingContext& context) {
  return BindTo<ProgressBarBinding, QProgressBar>(bar, widget, context);
}

std::unique_ptr<Binding> Bind(MoneyBar& bar, QWidget& widget, BindingContext& context) {
  return BindTo<MoneyBarBinding, MoneyBarWidget>(bar, widget, context);
}

std::unique_ptr<Binding> Bind(PageViewer& viewer, QWidget& widget, BindingContext& context) {
  return BindTo<PageViewerBinding, QWidget>(viewer, widget, context);
}

}  // namespace benevix
