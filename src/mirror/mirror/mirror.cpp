#include "mirror/mirror/mirror.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <set>

#include "mirror/look/accessibility.h"

namespace benevix {
namespace {

bool IsInput(QEvent::Type type) {
  static const std::set<QEvent::Type> input = {QEvent::MouseButtonPress,
                                               QEvent::MouseButtonRelease,
                                               QEvent::MouseButtonDblClick,
                                               QEvent::KeyPress,
                                               QEvent::KeyRelease,
                                               QEvent::Shortcut,
                                               QEvent::ShortcutOverride,
                                               QEvent::InputMethod,
                                               QEvent::Wheel,
                                               QEvent::ContextMenu,
                                               QEvent::TouchBegin,
                                               QEvent::TouchUpdate,
                                               QEvent::TouchEnd,
                                               QEvent::TabletPress,
                                               QEvent::TabletRelease,
                                               QEvent::DragEnter,
                                               QEvent::Drop,
                                               QEvent::Close};
  return input.count(type) != 0;
}

}  // namespace

void Mirror::Attach(Desk& desk, Input& input, const WindowLayout* layout) {
  Detach();
  InstallAccessibility();
  desk_ = &desk;
  layout_ = layout;
  context_ =
      std::make_unique<BindingContext>(BindingContext{input, scheme_, timers_ == Timers::Run});
  input.afterEvent = [this] { Sync(); };
}

void Mirror::Detach() {
  for (const auto& [window, binding] : bindings_) delete binding;
  bindings_.clear();
  desk_ = nullptr;
}

WindowBinding* Mirror::BindingOf(const Window& window) const {
  const auto found = bindings_.find(&window);
  return found == bindings_.end() ? nullptr : found->second;
}

void Mirror::Sync() {
  if (desk_ == nullptr || context_->applying) return;
  context_->applying = true;
  if (desk_->Ended()) {
    for (const auto& [window, binding] : bindings_) binding->Widget().hide();
  } else {
    UpdateWindows();
  }
  context_->applying = false;
  if (desk_->Ended()) onEnded();
}

void Mirror::UpdateWindows() {
  for (const Desk::Entry& entry : desk_->Entries()) {
    WindowBinding* binding = BindingOf(*entry.window);
    if (binding != nullptr && !binding->IsOf(entry)) {
      binding->Widget().hide();
      binding->deleteLater();
      bindings_.erase(entry.window);
      binding = nullptr;
    }
    if (binding == nullptr && entry.shown) {
      binding = std::make_unique<WindowBinding>(*desk_, entry, *context_, layout_).release();
      bindings_[entry.window] = binding;
    }
    if (binding != nullptr) binding->Apply(TransientParent(*entry.window));
  }
  ApplyFocus();
}

void Mirror::ApplyFocus() {
  for (const Window* window : desk_->Shown()) {
    if (WindowBinding* const binding = BindingOf(*window)) binding->ApplyFocus();
  }
}

QWidget* Mirror::TransientParent(const Window& window) const {
  // The nearest one below it that is on the screen.
  QWidget* parent = nullptr;
  for (const Window* shown : desk_->Shown()) {
    if (shown == &window) break;
    WindowBinding* const binding = BindingOf(*shown);
    if (binding != nullptr && !binding->Widget().isHidden()) parent = &binding->Widget();
  }
  return parent;
}

void Mirror::Begin() {
  for (const auto& [window, binding] : bindings_) binding->ForgetPress();
  Sync();
  if (waits_++ == 0) qApp->installEventFilter(this);
}

void Mirror::End() {
  if (--waits_ == 0) qApp->removeEventFilter(this);
}

void Mirror::DoEvents() {
  Begin();
  QCoreApplication::processEvents();
  End();
}

bool Mirror::eventFilter(QObject* watched, QEvent* event) {
  if (!IsInput(event->type()) || !watched->isWidgetType()) return false;
  const QWidget* const window = static_cast<QWidget*>(watched)->window();
  // The program waits for the answer of this one.
  if (qobject_cast<const QMessageBox*>(window) != nullptr) return false;
  event->ignore();
  return true;
}

}  // namespace benevix
