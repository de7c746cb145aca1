#include "mirror/mirror/mirror.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <algorithm>
#include <set>
#include <string_view>

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

// Also on a button that has come under the pointer since the first press.
bool IsSecondPress(const QObject& watched, const QEvent& event) {
  return event.type() == QEvent::MouseButtonDblClick &&
         qobject_cast<const QAbstractButton*>(&watched) != nullptr;
}

bool HasKey(const QEvent& event, int key) {
  const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
                     event.type() == QEvent::ShortcutOverride;
  return isKey && static_cast<const QKeyEvent&>(event).key() == key;
}

bool IsQuitKey(const QEvent& event) {
  return event.type() == QEvent::KeyPress && HasKey(event, Qt::Key_Q) &&
         static_cast<const QKeyEvent&>(event).modifiers() == Qt::ControlModifier;
}

}  // namespace

Mirror::Mirror(Scheme scheme, Timers timers) : scheme_(scheme), timers_(timers) {
  qApp->installEventFilter(this);
}

Mirror::~Mirror() {
  Detach();
}

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
  SetBusy(false);
}

void Mirror::SetScheme(Scheme scheme) {
  scheme_ = scheme;
  if (desk_ == nullptr) return;
  context_->scheme = scheme;
  Sync();
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
  SetBusy(!desk_->Ended() && !desk_->Activity().empty());
  if (desk_->Ended()) onEnded();
}

void Mirror::SetBusy(bool busy) {
  if (busy == busy_) return;
  busy_ = busy;
  // Over all windows, whose own pointers stay as they are.
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
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
    if (binding != nullptr)
      binding->Apply(TransientParent(*entry.window), Neighbour(*entry.window));
  }
  ApplyFocus();
}

void Mirror::ApplyFocus() {
  for (const Window* window : desk_->Shown()) {
    if (WindowBinding* const binding = BindingOf(*window)) binding->ApplyFocus();
  }
}

QWidget* Mirror::TransientParent(const Window& window) const {
  // The nearest one below it that is on the screen and does not stand aside itself.
  QWidget* parent = nullptr;
  for (const Window* shown : desk_->Shown()) {
    if (shown == &window) break;
    if (!std::string_view(shown->beside).empty()) continue;
    WindowBinding* const binding = BindingOf(*shown);
    if (binding != nullptr && !binding->Widget().isHidden()) parent = &binding->Widget();
  }
  return parent;
}

const QWidget* Mirror::Neighbour(const Window& window) const {
  WindowBinding* const main = BindingOf(*desk_->Entries().front().window);
  if (main == nullptr || std::string_view(window.beside).empty()) return nullptr;
  return main->Widget().findChild<QWidget*>(QLatin1String(window.beside));
}

void Mirror::BringToFront() {
  if (desk_ == nullptr) return;
  QWidget* front = nullptr;
  const auto raise = [&front](QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    if (!window.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus)) front = &window;
  };
  for (const Window* shown : desk_->Shown()) {
    if (WindowBinding* const binding = BindingOf(*shown)) raise(binding->Widget());
  }
  if (QWidget* const modal = QApplication::activeModalWidget()) raise(*modal);
  if (front != nullptr) front->activateWindow();
}

void Mirror::Begin() {
  for (const auto& [window, binding] : bindings_) binding->ForgetPress();
  Sync();
  ++waits_;
}

void Mirror::End() {
  --waits_;
}

void Mirror::DoEvents() {
  Begin();
  QCoreApplication::processEvents();
  End();
}

// What the user may do while the program waits for a request; controls/input knows the rest.
bool Mirror::EndsRequest(const QObject& watched, const QEvent& event) const {
  if (desk_ == nullptr || !desk_->IsRequesting()) return false;
  if (event.type() == QEvent::Close || HasKey(event, Qt::Key_Escape)) return true;
  return std::any_of(bindings_.begin(), bindings_.end(),
                     [&](const auto& window) { return window.second->EndsRequests(watched); });
}

bool Mirror::eventFilter(QObject* watched, QEvent* event) {
  if (IsSecondPress(*watched, *event)) return true;
  if (waits_ == 0 || !IsInput(event->type()) || !watched->isWidgetType()) return false;
  // The program waits for the answer of this one, and the toolkit keeps all others from input.
  if (qobject_cast<const QDialog*>(QApplication::activeModalWidget()) != nullptr) return false;
  if (EndsRequest(*watched, *event)) return false;
  // Its menu does not hear it while another window has the keys, or keeps the attention.
  if (IsQuitKey(*event)) context_->input.Close(*desk_->Entries().front().window);
  event->ignore();
  return true;
}

}  // namespace benevix
