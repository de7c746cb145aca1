// The bindings of controls that only show something or can be clicked or scrolled.

#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QProgressBar>
#include <QScrollBar>
#include <algorithm>

#include "base/format.h"
#include "mirror/bindings/make_binding.h"
#include "mirror/bindings/mnemonics.h"
#include "mirror/bindings/mouse_filter.h"
#include "mirror/bindings/widget_binding.h"
#include "mirror/look/accessibility.h"
#include "mirror/look/chart_widget.h"
#include "mirror/look/money_bar_widget.h"
#include "mirror/look/shape_widget.h"
#include "mirror/look/texts.h"
#include "mirror/page_viewer/page_view_host.h"

namespace benevix {
namespace {

class LabelBinding : public WidgetBinding<Label, QLabel> {
 public:
  LabelBinding(Label& label, QLabel& widget, BindingContext& context)
      : WidgetBinding(label, widget, context),
        colors_(widget, context.scheme),
        mouse_(widget, [this] { context_.input.Click(control_); }) {}

  [[nodiscard]] QString MnemonicCaption() const override {
    return LeadsToABox() ? ToQString(control_.caption) : QString();
  }
  void SetMnemonic(QChar letter) override { mnemonic_ = letter; }

 private:
  void ApplyKind() override {
    const QString caption = Drawn(control_.caption);
    widget_.setText(LeadsToABox() ? WithMnemonic(caption, mnemonic_) : WithoutMnemonic(caption));
    colors_.Apply({{QPalette::WindowText, control_.foreColor, Label().foreColor}}, {});
    // The marked letter is drawn by itself, without the kerning that the toolkit counts on. The
    // label's own hint would count the width that was set before.
    if (LeadsToABox()) {
      const QFontMetrics metrics = widget_.fontMetrics();
      widget_.setMinimumWidth(metrics.size(Qt::TextShowMnemonic, widget_.text()).width() +
                              metrics.averageCharWidth());
    }
    if (IsPlacedByTheProgram()) Place();
  }

  [[nodiscard]] bool LeadsToABox() const {
    return widget_.buddy() != nullptr && widget_.buddy()->focusPolicy() != Qt::NoFocus;
  }

  // Such a label stands in a panel that has no layout and is named for it: Label4_track.
  [[nodiscard]] bool IsPlacedByTheProgram() const {
    const QWidget* const panel = widget_.parentWidget();
    return panel != nullptr && panel->layout() == nullptr &&
           panel->objectName().startsWith(QLatin1String("Label"));
  }

  void Place() {
    const QWidget& panel = *widget_.parentWidget();
    int top = control_.top / kTwipsPerPixel;
    if (widget_.wordWrap()) {
      if (QLayout* const layout = widget_.window()->layout()) layout->activate();
      widget_.resize(panel.width(),
                     std::max(panel.height(), widget_.heightForWidth(panel.width())));
      // Back into the struct: only the widget knows how its text wraps.
      control_.height = widget_.height() * kTwipsPerPixel;
    } else {
      widget_.adjustSize();
      top += std::max(0, (panel.height() - widget_.height()) / 2);
    }
    widget_.move(control_.left / kTwipsPerPixel, top);
  }

  ControlColors colors_;
  MouseFilter mouse_;
  QChar mnemonic_;
};

class FrameBinding : public WidgetBinding<Frame, QGroupBox> {
 public:
  FrameBinding(Frame& frame, QGroupBox& widget, BindingContext& context)
      : WidgetBinding(frame, widget, context) {
    widget.ensurePolished();  // so that the space for the title is measured by its look
  }

 private:
  void ApplyKind() override { widget_.setTitle(Drawn(control_.caption)); }
};

class PictureBinding : public WidgetBinding<PictureBox, QWidget> {
 public:
  PictureBinding(PictureBox& picture, QWidget& widget, BindingContext& context)
      : WidgetBinding(picture, widget, context),
        mouse_(
            widget, [this] { context_.input.Click(control_); },
            [this] { context_.input.Hover(control_); }) {
    if (picture.isButton) widget.setFocusPolicy(Qt::StrongFocus);
  }

 private:
  MouseFilter mouse_;
};

class ShapeBinding : public WidgetBinding<Shape, ShapeWidget> {
 public:
  ShapeBinding(Shape& shape, ShapeWidget& widget, BindingContext& context)
      : WidgetBinding(shape, widget, context),
        mouse_(widget, [this] { context_.input.Click(control_); }) {}

 private:
  void ApplyKind() override {
    const bool filled = control_.fillStyle == 0;
    widget_.SetFill(filled ? RoleColor(control_.fillColor, context_.scheme) : QColor());
    widget_.SetBorder(RoleColor(control_.borderColor, context_.scheme));
    Describe(widget_, ToQString(control_.meaning));
  }

  MouseFilter mouse_;
};

class ScrollBarBinding : public WidgetBinding<ScrollBar, QScrollBar> {
 public:
  ScrollBarBinding(ScrollBar& bar, QScrollBar& widget, BindingContext& context)
      : WidgetBinding(bar, widget, context) {
    QObject::connect(&widget, &QScrollBar::valueChanged, &widget, [this](int value) {
      if (!context_.applying) context_.input.Scroll(control_, value);
    });
  }

 private:
  void ApplyKind() override {
    widget_.setMaximum(control_.max);
    // Its value is in twips: a key moves the text by lines and pages of it.
    widget_.setSingleStep(widget_.fontMetrics().lineSpacing() * kTwipsPerPixel);
    widget_.setPageStep(widget_.height() * kTwipsPerPixel);
    widget_.setValue(control_.value);
  }
};

class ProgressBarBinding : public WidgetBinding<ProgressBar, QProgressBar> {
 public:
  using WidgetBinding::WidgetBinding;

 private:
  void ApplyKind() override {
    widget_.setMaximum(control_.max);
    widget_.setValue(control_.value);
  }
};

class MoneyBarBinding : public WidgetBinding<MoneyBar, MoneyBarWidget> {
 public:
  using WidgetBinding::WidgetBinding;

 private:
  void ApplyKind() override {
    Describe(widget_, ToQString(control_.toolTip));
    std::vector<MoneyBarWidget::Part> parts;
    for (const MoneyBar::Part& part : control_.parts) {
      parts.push_back({UseColor(part.use, context_.scheme),
                       ToQString(part.caption + " " + Format(part.amount, kSumPattern)),
                       part.amount.ToDouble()});
    }
    widget_.SetParts(std::move(parts), ToQString(control_.remark));
  }
};

class ChartBinding : public WidgetBinding<Chart, ChartWidget> {
 public:
  using WidgetBinding::WidgetBinding;

 private:
  void ApplyKind() override {
    std::vector<ChartWidget::Mark> marks;
    QStringList texts;
    for (const Chart::Mark& mark : control_.marks) {
      std::string amount = Format(mark.amount, kSumPattern);
      if (!mark.share.empty()) amount += "   " + mark.share;
      marks.push_back({ToQString(mark.name), ToQString(amount),
                       std::max(mark.amount.ToDouble(), 0.0), ToQString(mark.text)});
      texts << ToQString(mark.text);
    }
    widget_.setAccessibleDescription(texts.join(QStringLiteral("; ")));
    widget_.SetMarks(control_.kind == Chart::Kind::Shares, std::move(marks));
  }
};

class PageViewerBinding : public WidgetBinding<PageViewer, QWidget> {
 public:
  PageViewerBinding(PageViewer& viewer, QWidget& widget, BindingContext& context)
      : WidgetBinding(viewer, widget, context),
        host_(&widget, widget.window()->findChild<QLabel*>(QStringLiteral("hostLine"))) {
    host_.onCanGoBackChanged = [this](bool canGoBack) {
      context_.input.MovedOn(control_, canGoBack);
    };
    host_.onShown = [this](const QUrl& address) {
      context_.input.Arrived(control_, FromQString(address.toString(QUrl::FullyEncoded)));
    };
  }

 private:
  void ApplyKind() override {
    if (navigations_ != control_.navigations) {
      navigations_ = control_.navigations;
      host_.Navigate(control_.page);
    }
    if (backs_ != control_.backs) {
      backs_ = control_.backs;
      host_.GoBack();
    }
  }

  PageViewHost host_;
  int navigations_ = 0;
  int backs_ = 0;
};

}  // namespace

std::unique_ptr<Binding> MakeDisplayBinding(const NamedControl& control, QWidget& widget,
                                            BindingContext& context) {
  return MakeFirst<LabelBinding, FrameBinding, PictureBinding, ShapeBinding, ScrollBarBinding,
                   ProgressBarBinding, MoneyBarBinding, ChartBinding, PageViewerBinding>(
      control, widget, context);
}

}  // namespace benevix
