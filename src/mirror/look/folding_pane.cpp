#include "mirror/look/folding_pane.h"

#include <QResizeEvent>
#include <algorithm>

namespace benevix {
namespace {

// In average characters of the font.
constexpr int kRoomBeside = 176;  // with less its neighbours would be crowded
constexpr int kLeast = 48;
// A name would stand too far from its amount.
constexpr int kMost = 90;

}  // namespace

FoldingPane::FoldingPane(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  hide();  // until it is known that there is room
  parent->installEventFilter(this);
}

QSize FoldingPane::sizeHint() const {
  return {width_, QWidget::sizeHint().height()};
}

bool FoldingPane::eventFilter(QObject* watched, QEvent* event) {
  const bool ofParent = watched == parentWidget() && event->type() == QEvent::Resize;
  if (ofParent) Fit(static_cast<const QResizeEvent*>(event)->size().width());
  return false;
}

void FoldingPane::Fit(int room) {
  const int unit = fontMetrics().averageCharWidth();
  width_ = std::clamp(room / 4, kLeast * unit, kMost * unit);
  updateGeometry();
  setVisible(room >= (kRoomBeside + kLeast) * unit);
}

}  // namespace benevix
