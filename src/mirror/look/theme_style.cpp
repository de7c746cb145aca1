#include "mirror/look/theme_style.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOption>
#include <QTableView>
#include <algorithm>

#include "mirror/look/pictures.h"
#include "mirror/look/theme_painting.h"
#include "mirror/look/tones.h"
#include "mirror/look/widget_look.h"

namespace benevix {
namespace {

// All in pixels.
constexpr int kTextInset = 4;  // beside the text of a combo box
constexpr int kScrollBarWidth = 14;
constexpr int kIndicator = 16;  // of an option or check box
constexpr int kIndicatorSpacing = 8;
constexpr QMargins kAroundButtonText(17, 7, 17, 7);  // the border too
constexpr QMargins kAroundHeading(8, 6, 9, 7);       // the lines behind and below it too
constexpr QMargins kAroundMenuTitle(8, 4, 8, 4);
constexpr QMargins kAroundSeparator(8, 4, 8, 4);

QString LookOrNone(const QWidget* widget) {
  return widget == nullptr ? QString() : LookOf(*widget);
}

// Around an option or check box. Those of a plain box make up for the room that it lacks.
QMargins AroundOption(const QWidget* widget) {
  const auto* const box =
      widget == nullptr ? nullptr : qobject_cast<const QGroupBox*>(widget->parentWidget());
  const bool isInPlainBox = box != nullptr && LookOf(*box) == QLatin1String("plain");
  if (isInPlainBox && widget->inherits("QRadioButton")) return {8, 3, 8, 3};
  return {2, 1, 2, 1};
}

bool IsSeparator(const QStyleOption* option) {
  const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  return item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator;
}

}  // namespace

ThemeStyle::ThemeStyle(Scheme scheme) : QProxyStyle(QStringLiteral("Fusion")), scheme_(scheme) {}

void ThemeStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  GiveLook(*widget, scheme_);
}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit: {
      const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      // The edit inside a combo box has no frame of its own.
      if (!frame || frame->lineWidth <= 0) break;
      return PaintBox(*option, option->palette.brush(QPalette::Base), *painter);
    }
    case PE_IndicatorCheckBox:
      return PaintIndicator(*option, false, *painter);
    case PE_IndicatorRadioButton:
      return PaintIndicator(*option, true, *painter);
    case PE_PanelTipLabel:
      return PaintTip(option->rect, scheme_, *painter);
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ThemeStyle::DrawButtonText(const QStyleOptionButton& button, QPainter& painter,
                                const QWidget* widget) const {
  QStyleOptionButton text = button;
  text.palette.setColor(QPalette::ButtonText, ButtonText(button, widget, scheme_));
  QProxyStyle::drawControl(CE_PushButtonLabel, &text, &painter, widget);
}

void ThemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  switch (element) {
    case CE_PushButton:
      if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        PaintButton(*button, widget, scheme_, *painter);
        return DrawButtonText(*button, *painter, widget);
      }
      break;
    case CE_ShapedFrame:
      if (PaintFrame(*option, widget, scheme_, *painter)) return;
      break;
    case CE_RadioButton:
    case CE_CheckBox:
      if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        QStyleOptionButton inside = *button;
        inside.rect = option->rect.marginsRemoved(AroundOption(widget));
        return QProxyStyle::drawControl(element, &inside, painter, widget);
      }
      break;
    case CE_Header:
      if (const auto* const header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
        PaintHeaderSection(option->rect, scheme_, *painter);
        QStyleOptionHeader label = *header;
        label.rect = option->rect.marginsRemoved(kAroundHeading);
        QProxyStyle::drawControl(CE_HeaderLabel, &label, painter, widget);
        if (header->sortIndicator == QStyleOptionHeader::None) return;
        label.rect = subElementRect(SE_HeaderArrow, option, widget);
        return QProxyStyle::drawPrimitive(PE_IndicatorHeaderArrow, &label, painter, widget);
      }
      break;
    case CE_HeaderEmptyArea:
      return painter->fillRect(option->rect, ColorOf(tone::kWindow, scheme_));
    case CE_MenuBarItem:
    case CE_MenuBarEmptyArea:
      if (const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
        return PaintMenuBarItem(*item, widget, scheme_, *painter);
      }
      break;
    case CE_MenuItem:
      if (IsSeparator(option)) {
        return painter->fillRect(option->rect.marginsRemoved(kAroundSeparator),
                                 ColorOf(tone::kLine, scheme_));
      }
      break;
    case CE_Splitter:
      return;
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  if (control == CC_GroupBox) {
    if (const auto* const box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
      return PaintGroupBox(*box, LookOrNone(widget), scheme_, *painter);
    }
  }
  if (control == CC_ScrollBar) {
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
      return PaintScrollBar(*bar, scheme_, *painter);
    }
  }
  const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control != CC_ComboBox || !combo || !combo->frame) {
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  PaintBox(*option, option->palette.brush(combo->editable ? QPalette::Base : QPalette::Button),
           *painter);
  PaintArrow(*option, subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget), *painter);
}

QRect ThemeStyle::subElementRect(SubElement element, const QStyleOption* option,
                                 const QWidget* widget) const {
  const QRect rect = QProxyStyle::subElementRect(element, option, widget);
  const auto* const edit = qobject_cast<const QLineEdit*>(widget);
  if (element != SE_LineEditContents || edit == nullptr) return rect;
  return rect.marginsRemoved(PaddingOf(*edit));
}

QRect ThemeStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                 SubControl part, const QWidget* widget) const {
  if (const auto* const box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
    if (part == SC_GroupBoxLabel) return TitleRect(*box);
    if (part == SC_GroupBoxContents) return ContentsRect(*box, LookOrNone(widget));
    return box->rect;
  }
  if (control == CC_ScrollBar) {
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
      return ScrollBarRect(*bar, part);
    }
  }
  const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  const bool text = control == CC_ComboBox && part == SC_ComboBoxEditField;
  return text ? rect.adjusted(kTextInset, 0, -kTextInset, 0) : rect;
}

QSize ThemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                   const QSize& contents, const QWidget* widget) const {
  switch (type) {
    case CT_PushButton:
      return contents.grownBy(kAroundButtonText);
    case CT_LineEdit:
      if (const auto* const edit = qobject_cast<const QLineEdit*>(widget)) {
        return contents.grownBy(PaddingOf(*edit));
      }
      break;
    case CT_RadioButton:
    case CT_CheckBox:
      return QSize(kIndicator + kIndicatorSpacing + contents.width(),
                   std::max(kIndicator, contents.height()))
          .grownBy(AroundOption(widget));
    case CT_GroupBox:
      return contents;  // the title stands in the room that its layout leaves
    case CT_MenuBarItem:
      return contents.grownBy(kAroundMenuTitle);
    case CT_MenuItem:
      if (IsSeparator(option)) return QSize(1, 1).grownBy(kAroundSeparator);
      break;
    case CT_HeaderSection:
      if (const auto* const header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
        return header->fontMetrics.size(0, header->text).grownBy(kAroundHeading);
      }
      break;
    default:
      break;
  }
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  return type == CT_ComboBox ? size + QSize(2 * kTextInset, 2) : size;
}

QIcon ThemeStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                               const QWidget* widget) const {
  switch (icon) {
    case SP_MessageBoxInformation:
      return PictureIcon(QStringLiteral("information"));
    case SP_MessageBoxQuestion:
      return PictureIcon(QStringLiteral("question"));
    case SP_MessageBoxWarning:
      return PictureIcon(QStringLiteral("warning"));
    case SP_MessageBoxCritical:
      return PictureIcon(QStringLiteral("critical"));
    // Of a menu bar that is too narrow for its menus; every start would read three images for it.
    case SP_ToolBarHorizontalExtensionButton:
      return PictureIcon(QStringLiteral("more"));
    default:
      return QProxyStyle::standardIcon(icon, option, widget);
  }
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
  switch (metric) {
    case PM_FocusFrameHMargin:  // the cells' text starts where the headers' does
      return 7;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return kIndicator;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
      return kIndicatorSpacing;
    case PM_ScrollBarExtent:
      return kScrollBarWidth;
    case PM_ToolTipLabelFrameWidth:
      return 4;
    case PM_DefaultFrameWidth:
      if (qobject_cast<const QPlainTextEdit*>(widget) != nullptr) return 3;
      if (qobject_cast<const QTableView*>(widget) != nullptr) return 1;
      break;
    default:
      break;
  }
  return QProxyStyle::pixelMetric(metric, option, widget);
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* answer) const {
  // The buttons of a question look like all others.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

}  // namespace benevix
