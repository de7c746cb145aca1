#include "mirror/look/accessibility.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <memory>

namespace benevix {
namespace {

constexpr const char* kRole = "roleForScreenReaders";

// A widget of the role that it is marked with.
class MarkedInterface : public QAccessibleWidget {
 public:
  MarkedInterface(QWidget& widget, int role)
      : QAccessibleWidget(&widget, static_cast<QAccessible::Role>(role)) {}

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
    // Posted: the screen reader does not wait for what the click begins.
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const QPointF place = widget()->rect().center();
      auto click = std::make_unique<QMouseEvent>(type, place, widget()->mapToGlobal(place),
                                                 Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::postEvent(widget(), click.release());
    }
  }
};

// By a property, not by a cast: objects of the page's engine also come here, and casting them
// fails.
QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  const QVariant role = object->property(kRole);
  if (role.isValid()) return new MarkedInterface(*static_cast<QWidget*>(object), role.toInt());
  auto* const label = qobject_cast<QLabel*>(object);
  const bool hand = label != nullptr && label->cursor().shape() == Qt::PointingHandCursor;
  return hand ? new LinkInterface(*label) : nullptr;
}

}  // namespace

// Not QAccessible::Indicator, which the accessibility bus does not know.
void MarkAsIndicator(QWidget& widget) {
  widget.setProperty(kRole, QAccessible::Graphic);
}

void MarkAsDialog(QWidget& window) {
  window.setProperty(kRole, QAccessible::Dialog);
}

void Describe(QWidget& widget, const QString& description) {
  // The toolkit would also tell of the same one.
  if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
}

void InstallAccessibility() {
  QAccessible::installFactory(Make);
}

}  // namespace benevix
