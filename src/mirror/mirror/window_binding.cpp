#include "mirror/mirror/window_binding.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPushButton>
#include <QShortcut>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <string_view>

#include "mirror/bindings/make_binding.h"
#include "mirror/bindings/mnemonics.h"
#include "mirror/look/accessibility.h"
#include "mirror/look/texts.h"
#include "mirror/mirror/drawings.h"
#include "mirror/mirror/window_layout.h"
#include "mirror/mirror/window_place.h"

namespace benevix {
namespace {

// A screen reader moves the focus for another reason; the program does so only while it applies.
bool IsUsersFocus(Qt::FocusReason reason) {
  return reason == Qt::OtherFocusReason || reason == Qt::MouseFocusReason ||
         reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
         reason == Qt::ShortcutFocusReason;
}

// The tool tip with the shortcut, or the shortcut alone. Without a shortcut the toolkit shows it.
bool ShowTip(const Control& control, QWidget& widget, const QHelpEvent& event) {
  const QKeySequence shortcut(QLatin1String(control.shortcut));
  if (shortcut.isEmpty()) return false;
  const QString keys = shortcut.toString(QKeySequence::NativeText);
  const QString tip = ToQString(control.toolTip);
  QToolTip::showText(event.globalPos(),
                     tip.isEmpty() ? keys : tip + QStringLiteral(" (%1)").arg(keys), &widget);
  return true;
}

}  // namespace

WindowBinding::WindowBinding(Desk& desk, const Desk::Entry& entry, BindingContext& context,
                             const WindowLayout* layout)
    : desk_(desk),
      context_(context),
      layout_(layout),
      window_(*entry.window),
      loads_(entry.loads),
      widget_(MakeDrawing(entry.name)),
      activityLine_(widget_->findChild<QLabel*>(QStringLiteral("activityLine"))),
      keys_(context.input, window_, *widget_),
      note_(std::make_unique<NoteBubble>(*widget_).release()) {
  widget_->installEventFilter(this);
  if (activityLine_ != nullptr) {
    QSizePolicy policy = activityLine_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);  // nothing moves when it appears
    activityLine_->setSizePolicy(policy);
    activityLine_->hide();
  }
  for (const NamedControl& control : entry.controls) {
    auto binding = MakeBinding(control, *widget_, context_);
    if (!binding) continue;
    if (QWidget* const widget = binding->Widget()) widget->installEventFilter(this);
    bound_.push_back({&control, std::move(binding)});
  }
  auto* const mainWindow = qobject_cast<QMainWindow*>(widget_.get());
  if (mainWindow == nullptr) {
    MarkAsDialog(*widget_);
  } else {
    menus_ = std::make_unique<MenuBinding>(entry, *mainWindow->menuBar(), context_);
  }
  GiveMnemonics();
  MakeShortcuts(entry);
  if (mainWindow != nullptr && layout_ != nullptr) layout_->Restore(*mainWindow);
}

WindowBinding::~WindowBinding() {
  // While they are destroyed the widgets still send events, which are not the user's.
  widget_->removeEventFilter(this);
  for (const auto& [control, binding] : bound_) {
    if (QWidget* const widget = binding->Widget()) widget->removeEventFilter(this);
  }
}

void WindowBinding::GiveMnemonics() {
  QStringList captions = menus_ ? menus_->Titles() : QStringList();
  const auto titles = captions.size();
  std::vector<Binding*> takers;
  for (const auto& [control, binding] : bound_) {
    const QString caption = binding->MnemonicCaption();
    if (caption.isEmpty()) continue;
    takers.push_back(binding.get());
    captions.append(caption);
  }
  const std::vector<QChar> letters = Mnemonics(captions);
  const auto own = letters.begin() + titles;
  if (menus_) menus_->SetTitleMnemonics({letters.begin(), own});
  for (std::size_t i = 0; i < takers.size(); ++i) {
    takers[i]->SetMnemonic(own[static_cast<std::ptrdiff_t>(i)]);
  }
}

// Menus show and take their own shortcuts; Enter and Escape come as keys.
void WindowBinding::MakeShortcuts(const Desk::Entry& entry) {
  for (const NamedControl& control : entry.controls) {
    const std::string_view key = control.Base().shortcut;
    if (key.empty() || key == kEnterShortcut || key == kEscapeShortcut || IsMenu(control)) continue;
    auto* const shortcut =
        new QShortcut(QKeySequence(QLatin1String(control.Base().shortcut)), widget_.get());
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this,
            [this, &control] { context_.input.Shortcut(control); });
    shortcuts_.push_back(shortcut);
  }
}

bool WindowBinding::IsShortcut(const QKeyEvent& key) const {
  const QKeySequence keys(key.keyCombination());
  return std::ranges::any_of(shortcuts_, [&](const auto* own) { return own->key() == keys; });
}

QWidget* WindowBinding::WidgetOf(const Control& control) const {
  for (const auto& [named, binding] : bound_) {
    if (&named->Base() == &control) return binding->Widget();
  }
  return nullptr;
}

QAction* WindowBinding::ActionOf(const NamedControl& control, int element) const {
  return menus_ ? menus_->Action(control, element) : nullptr;
}

const WindowBinding::BoundControl* WindowBinding::BoundTo(const QObject* widget) const {
  for (const BoundControl& bound : bound_) {
    if (widget != nullptr && bound.binding->Widget() == widget) return &bound;
  }
  return nullptr;
}

bool WindowBinding::EndsRequests(const QObject& widget) const {
  const BoundControl* const bound = BoundTo(&widget);
  return bound != nullptr && benevix::EndsRequests(bound->control->Base());
}

void WindowBinding::Apply(QWidget* transientParent, const QWidget* neighbour) {
  ApplyControls();
  if (menus_) menus_->Apply();
  ApplyWindow();
  const bool shown = desk_.IsShown(window_);
  if (shown && widget_->isHidden()) ShowWindow(transientParent, neighbour);
  if (!shown && !widget_->isHidden()) widget_->hide();
}

void WindowBinding::ApplyControls() {
  for (const auto& [control, binding] : bound_) binding->Apply();
  ApplyNote();
}

// There is at most one: a note goes when the focus moves.
void WindowBinding::ApplyNote() {
  for (const auto& [control, binding] : bound_) {
    const std::string& note = control->Base().note;
    if (note.empty() || binding->Widget() == nullptr) continue;
    return note_->ShowAt(*binding->Widget(), Drawn(note));
  }
  note_->Dismiss();
}

void WindowBinding::ApplyWindow() {
  widget_->setWindowTitle(TitleOf(window_.caption));
  widget_->setEnabled(desk_.IsEnabled(window_));
  const bool busy = window_.mousePointer == MousePointer::Hourglass;
  if (busy != (widget_->cursor().shape() == Qt::WaitCursor)) {
    if (busy) {
      widget_->setCursor(Qt::WaitCursor);
    } else {
      widget_->unsetCursor();
    }
  }
  ShowActivity();
}

// What the program waits for stands where the donor looks, and no button looks as if it could be
// pressed meanwhile but the one that ends the wait.
void WindowBinding::ShowActivity() {
  if (activityLine_ == nullptr) return;
  const QString activity = Drawn(desk_.Activity());
  if (activityLine_->text() == activity) return;
  activityLine_->setText(activity);
  activityLine_->setVisible(!activity.isEmpty());
  for (const auto& [named, binding] : bound_) {
    auto* const button = qobject_cast<QPushButton*>(binding->Widget());
    if (button == nullptr || benevix::EndsRequests(named->Base())) continue;
    button->setProperty("waits", !activity.isEmpty());
    button->update();
  }
}

void WindowBinding::ShowWindow(QWidget* transientParent, const QWidget* neighbour) {
  const Desk::Entry& entry = desk_.Find(window_);
  // Over a topmost window only another topmost one can be seen.
  const bool overTopmost = transientParent != nullptr &&
                           transientParent->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  widget_->setWindowFlag(Qt::WindowStaysOnTopHint, window_.topmost || overTopmost);
  // Some desktops give the keys to every new window that may have them.
  widget_->setWindowFlag(Qt::WindowDoesNotAcceptFocus, neighbour != nullptr);
  widget_->setWindowModality(entry.modal ? Qt::ApplicationModal : Qt::NonModal);
  // Before the window is made, so that the place is that of its frame.
  if (!IsPlacedAgain()) {
    PlaceWindow(*widget_, QPoint(window_.left, window_.top) / kTwipsPerPixel, transientParent,
                neighbour);
  }
  if (transientParent != nullptr) {
    // So it stays above its parent, and can be used while the parent is modal.
    widget_->winId();
    widget_->windowHandle()->setTransientParent(transientParent->windowHandle());
  }
  widget_->setAttribute(Qt::WA_ShowWithoutActivating, neighbour != nullptr);
  widget_->show();
  widget_->raise();
  if (neighbour == nullptr) widget_->activateWindow();
  ApplyControls();  // for what depends on the final size
}

bool WindowBinding::IsPlacedAgain() {
  if (layout_ == nullptr || qobject_cast<QMainWindow*>(widget_.get()) == nullptr) return false;
  const auto place = layout_->Place();
  return place && PlaceAgain(*widget_, *place);
}

void WindowBinding::ApplyFocus() {
  const Control* const focus = desk_.FocusOf(window_);
  QWidget* const wanted = focus != nullptr ? WidgetOf(*focus) : nullptr;
  QWidget* const now = widget_->focusWidget();
  if (wanted != nullptr && (now != wanted || !wanted->hasFocus())) {
    wanted->setFocus(Qt::OtherFocusReason);
  } else if (wanted == nullptr && now != nullptr && BoundTo(now) != nullptr) {
    now->clearFocus();
  }
}

bool WindowBinding::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget_.get()) return FilterWindow(*event);
  const BoundControl* const bound = BoundTo(watched);
  return bound != nullptr && FilterControl(*bound, *event);
}

bool WindowBinding::FilterWindow(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      event.ignore();
      context_.input.Close(window_);
      return true;
    case QEvent::Hide:
      if (const auto* const mainWindow = qobject_cast<const QMainWindow*>(widget_.get())) {
        if (layout_ != nullptr) layout_->Save(*mainWindow);
      }
      return false;
    case QEvent::Resize:
      if (context_.applying) return false;
      context_.applying = true;
      ApplyControls();
      context_.applying = false;
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    // The press of a key that a page does not use arrives only as this.
    case QEvent::ShortcutOverride:
      // The key of a control that has the focus has been filtered there.
      return BoundTo(widget_->focusWidget()) == nullptr &&
             keys_.Filter(static_cast<const QKeyEvent&>(event));
    default:
      return false;
  }
}

bool WindowBinding::FilterControl(const BoundControl& bound, QEvent& event) {
  Control& control = bound.control->Base();
  QWidget& widget = *bound.binding->Widget();
  switch (event.type()) {
    // On some desktops a box takes Ctrl+E for the end of its line.
    case QEvent::ShortcutOverride:
      if (!IsShortcut(static_cast<const QKeyEvent&>(event))) return false;
      event.ignore();
      return true;
    case QEvent::FocusIn:
      if (!context_.applying && IsUsersFocus(static_cast<const QFocusEvent&>(event).reason())) {
        context_.input.Focus(control);
      }
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      // A key that a button does not take goes on to the frame around it.
      return widget_->focusWidget() == &widget &&
             keys_.Filter(control, widget, static_cast<const QKeyEvent&>(event));
    case QEvent::ToolTip:
      return ShowTip(control, widget, static_cast<const QHelpEvent&>(event));
    default:
      return false;
  }
}

}  // namespace benevix
