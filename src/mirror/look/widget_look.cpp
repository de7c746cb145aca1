#include "mirror/look/widget_look.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVariant>
#include <cmath>

#include "mirror/look/tones.h"

namespace benevix {
namespace {

constexpr double kSmall = 0.9;
constexpr double kMedium = 1.15;

struct LabelLook {
  const char* name = "";
  double size = 1;              // of the application's font
  const Tone* color = nullptr;  // null for that of other texts
  QMargins room = {};           // pixels
  bool bold = false;
  bool dims = false;  // takes the colour of disabled texts when it is disabled
};

constexpr LabelLook kLabels[] = {
    {.name = "heading", .color = &tone::kAccent, .room = {0, 0, 0, 4}, .bold = true, .dims = true},
    {.name = "caption", .bold = true},
    {.name = "note", .size = kSmall, .color = &tone::kMuted},
    {.name = "aside", .size = kSmall, .color = &tone::kMuted},
    {.name = "warning", .color = &tone::kRed, .bold = true},
    {.name = "bubble", .size = kSmall, .color = &tone::kText, .room = {9, 4, 9, 4}},
    {.name = "figure", .size = kSmall},
    {.name = "name", .size = kMedium, .bold = true},
    {.name = "unit", .size = kMoneyScale, .bold = true},
    {.name = "page", .size = kMoneyScale},
    {.name = "link", .color = &tone::kAccent, .room = {4, 2, 4, 2}, .dims = true},
    {.name = "guidance",
     .size = kMedium,
     .color = &tone::kOnTint,
     .room = {16, 3, 12, 3},
     .bold = true},
    {.name = "enter", .room = {4, 4, 4, 4}},
    {.name = "exit", .room = {4, 4, 4, 4}},
};

QFont Sized(double size, bool bold) {
  QFont font = QApplication::font();
  font.setPointSizeF(QFontInfo(font).pointSizeF() * size);
  font.setBold(bold);
  return font;
}

int WidthOf(const QFont& font, const char* text) {
  return QFontMetrics(font).horizontalAdvance(QLatin1String(text));
}

// Only what the look has of its own; the rest stays that of the parent.
void GiveFont(QWidget& widget, const LabelLook& look) {
  QFont font;
  if (look.size != 1) font.setPointSizeF(Sized(look.size, false).pointSizeF());
  if (look.bold) font.setBold(true);
  if (QLatin1String(look.name) == QLatin1String("link")) font.setUnderline(true);
  widget.setFont(font);
}

void GiveColor(QWidget& widget, const LabelLook& look, Scheme scheme) {
  QPalette palette;
  if (look.color != nullptr) {
    const QColor color = ColorOf(*look.color, scheme);
    palette.setColor(QPalette::Active, QPalette::WindowText, color);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, color);
    if (!look.dims) palette.setColor(QPalette::Disabled, QPalette::WindowText, color);
  }
  widget.setPalette(palette);
}

void GiveLabelLook(QLabel& label, const QString& name, Scheme scheme) {
  for (const LabelLook& look : kLabels) {
    if (name != QLatin1String(look.name)) continue;
    GiveFont(label, look);
    GiveColor(label, look, scheme);
    label.setContentsMargins(look.room);
  }
  // Room for two lines, so that a longer sentence does not push what stands below.
  if (name == QLatin1String("guidance")) {
    label.setMinimumHeight(2 * label.fontMetrics().lineSpacing() + 6);
  }
  // The same, and of its own width: what it says moves nothing.
  if (name == QLatin1String("aside")) {
    label.setFixedWidth(WidthOf(label.font(), "Opens when 100.00 m"));
    label.setMinimumHeight(2 * label.fontMetrics().lineSpacing());
  }
}

// The pixels of boxes for amounts and of the filter, without their padding.
struct EditSizes {
  int amount, longestAmount, acceptedBudget, search;
};

EditSizes MeasuredSizes() {
  const QFont amount = Sized(kMoneyScale, true);
  // An accepted Budget is drawn larger than what is typed.
  const double larger = 9.0 / TextBox().fontSize;
  return {
      WidthOf(amount, "10,000.00"), WidthOf(amount, "1,000,000,000.00"),
      static_cast<int>(std::ceil(QFontMetrics(amount).height() * larger)),
      WidthOf(Sized(1, true), "Organizations that help people who were driven from their homes")};
}

void GiveEditLook(QLineEdit& edit, const QString& name) {
  static const EditSizes sizes = MeasuredSizes();
  const QMargins padding = PaddingOf(edit);
  const int beside = padding.left() + padding.right();
  if (name == QLatin1String("money")) {
    // The size of its font is the mirror's, which gives it that of the struct.
    edit.setMinimumWidth(sizes.amount + beside);
    edit.setMaximumWidth(sizes.longestAmount + beside);
    constexpr int ownMargins = 2;
    edit.setMinimumHeight(sizes.acceptedBudget + ownMargins + padding.top() + padding.bottom());
  } else if (name == QLatin1String("search")) {
    // Beyond this the eye would have to go back for what stands behind it.
    edit.setMaximumWidth(sizes.search + beside);
  }
}

// Rows without a box of their own, on the ground of what they stand on.
void GivePlainTable(QTableView& table, Scheme scheme) {
  table.setFrameShape(QFrame::NoFrame);
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::transparent);
  palette.setColor(QPalette::Highlight, ColorOf(tone::kTint, scheme));
  palette.setColor(QPalette::HighlightedText, ColorOf(tone::kOnTint, scheme));
  table.setPalette(palette);
}

}  // namespace

QString LookOf(const QWidget& widget) {
  return widget.property(kLook).toString();
}

QMargins PaddingOf(const QLineEdit& edit) {
  if (qobject_cast<const QComboBox*>(edit.parentWidget()) != nullptr) return {};
  const QString look = LookOf(edit);
  if (look == QLatin1String("money")) return {8, 4, 8, 4};
  return look == QLatin1String("search") ? QMargins(4, 6, 4, 6) : QMargins(4, 5, 4, 5);
}

void GiveLook(QWidget& widget, Scheme scheme) {
  const QString look = LookOf(widget);
  if (auto* const label = qobject_cast<QLabel*>(&widget)) {
    GiveLabelLook(*label, look, scheme);
  } else if (auto* const edit = qobject_cast<QLineEdit*>(&widget)) {
    GiveEditLook(*edit, look);
  } else if (auto* const table = qobject_cast<QTableView*>(&widget)) {
    if (look == QLatin1String("plain")) GivePlainTable(*table, scheme);
  } else if (qobject_cast<QHeaderView*>(&widget) != nullptr || look == QLatin1String("primary")) {
    QFont bold;
    bold.setBold(true);
    widget.setFont(bold);
  } else if (look == QLatin1String("track")) {
    widget.setFixedHeight(widget.fontMetrics().height() + 8);
  }
}

}  // namespace benevix
