#include "mirror/look/accessibility.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>

namespace benevix {
namespace {

constexpr const char* kIndicator = "isIndicator";

class IndicatorInterface : public QAccessibleWidget {
 public:
  explicit IndicatorInterface(QWidget& widget)
      : QAccessibleWidget(&widget, QAccessible::Indicator) {}

  [[nodiscard]] QString text(QAccessible::Text which) const override {
    return which == QAccessible::Value ? widget()->accessibleDescription()
                                       : QAccessibleWidget::text(which);
  }
};

class LinkInterface : public QAccessibleWidget {
 public:
  explicit LinkInterface(QLabel& label) : QAccessibleWidget(&label, QAccessible::Link) {}

  [[nodiscard]] QString text(QAccessible::Text which) const override {
    const QString text = QAccessibleWidget::text(which);
    const auto& label = *static_cast<const QLabel*>(widget());
    return which == QAccessible::Name && text.isEmpty() ? label.text() : text;
  }
  [[nodiscard]] QStringList actionNames() const override {
    return widget()->isEnabled() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString& name) override {
    if (name != pressAction() || !widget()->isEnabled()) return;
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const QPointF place = widget()->rect().center();
      QMouseEvent click(type, place, widget()->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                        Qt::NoModifier);
      QCoreApplication::sendEvent(widget(), &click);
    }
  }
};

// By a property, not by a cast: objects of the page's engine also come here, and casting them
// fails.
QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  if (object->property(kIndicator).toBool()) {
    return new IndicatorInterface(*static_cast<QWidget*>(object));
  }
  auto* const label = qobject_cast<QLabel*>(object);
  const bool hand = label != nullptr && label->cursor().shape() == Qt::PointingHandCursor;
  return hand ? new LinkInterface(*label) : nullptr;
}

}  // namespace

void MarkAsIndicator(QWidget& widget) {
  widget.setProperty(kIndicator, true);
}

void InstallAccessibility() {
  QAccessible::installFactory(Make);
}

}  // namespace benevix
