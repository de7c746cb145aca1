#include "mirror/mirror/window_binding.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QShortcut>
#include <QToolTip>
#include <QWindow>
#include <string_view>

#include "base/text.h"
#include "mirror/bindings/mnemonics.h"
#include "mirror/look/texts.h"
#include "mirror/mirror/drawings.h"
#include "mirror/mirror/window_layout.h"

namespace benevix {
namespace {

// Key codes as KeyUp gives them; letters and digits are those of their capitals.
int KeyCode(int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keys::kEnter;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return keys::kTab;
    case Qt::Key_Escape:
      return keys::kEscape;
    case Qt::Key_Backspace:
      return keys::kBackspace;
    default:
      return key < 128 ? key : 0;
  }
}

// By itself: buttons and boxes tell their clicks themselves.
bool IsClickable(const NamedControl& control) {
  return control.As<Label>() != nullptr || control.As<PictureBox>() != nullptr;
}

bool IsUsersFocus(Qt::FocusReason reason) {
  return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
         reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}  // namespace

WindowBinding::WindowBinding(Desk& desk, const Desk::Entry& entry, BindingContext& context)
    : desk_(desk),
      context_(context),
      window_(entry.window),
      loads_(entry.loads),
      widget_(MakeDrawing(entry.name)) {
  widget_->installEventFilter(this);
  bool hasMenus = false;
  for (const NamedControl& control : entry.controls) {
    hasMenus = hasMenus || IsMenu(control);
    auto binding = IsMenu(control) ? nullptr : MakeBinding(control, *widget_, context_);
    if (!binding) continue;
    if (QWidget* const widget = binding->Widget()) {
      widget->installEventFilter(this);
      widget->setMouseTracking(true);
    }
    bound_.push_back({&control, std::move(binding)});
  }
  auto* const mainWindow = qobject_cast<QMainWindow*>(widget_.get());
  if (mainWindow != nullptr && hasMenus) {
    menus_ = std::make_unique<MenuBinding>(entry, *mainWindow->menuBar(), context_);
  }
  GiveMnemonics();
  MakeShortcuts(entry);
  if (mainWindow == nullptr) return;
  if (context_.layout != nullptr) context_.layout->Restore(*mainWindow);
}

WindowBinding::~WindowBinding() {
  // What the widgets still tell while they go is nobody's business.
  widget_->removeEventFilter(this);
  for (const Bound& bound : bound_) {
    if (QWidget* const widget = bound.binding->Widget()) widget->removeEventFilter(this);
  }
}

void WindowBinding::GiveMnemonics() {
  QStringList captions = menus_ ? menus_->Titles() : QStringList();
  const auto titles = captions.size();
  std::vector<Binding*> takers;
  for (const Bound& bound : bound_) {
    const QString caption = bound.binding->MnemonicCaption();
    if (caption.isEmpty()) continue;
    takers.push_back(bound.binding.get());
    captions.append(caption);
  }
  const std::vector<QChar> letters = Mnemonics(captions);
  const auto own = letters.begin() + titles;
  if (menus_) menus_->SetTitleMnemonics({letters.begin(), own});
  for (std::size_t i = 0; i < takers.size(); ++i) {
    takers[i]->SetMnemonic(own[static_cast<std::ptrdiff_t>(i)]);
  }
}

// Menus show and take theirs themselves; Enter and Escape come as keys.
void WindowBinding::MakeShortcuts(const Desk::Entry& entry) {
  for (const NamedControl& control : entry.controls) {
    const std::string_view key = control.Base().shortcut;
    if (key.empty() || key == kEnterShortcut || key == kEscapeShortcut || IsMenu(control)) continue;
    auto* const shortcut =
        new QShortcut(QKeySequence(QLatin1String(control.Base().shortcut)), widget_.get());
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this,
            [this, &control] { context_.input.Shortcut(control); });
  }
}

QWidget* WindowBinding::WidgetOf(const Control& control) const {
  for (const Bound& bound : bound_) {
    if (&bound.control->Base() == &control) return bound.binding->Widget();
  }
  return nullptr;
}

QAction* WindowBinding::ActionOf(const NamedControl& control, int element) const {
  return menus_ ? menus_->Action(control, element) : nullptr;
}

const WindowBinding::Bound* WindowBinding::BoundTo(const QObject* widget) const {
  for (const Bound& bound : bound_) {
    if (widget != nullptr && bound.binding->Widget() == widget) return &bound;
  }
  return nullptr;
}

void WindowBinding::Apply(QWidget* transientParent) {
  for (const Bound& bound : bound_) bound.binding->Apply();
  if (menus_) menus_->Apply();
  ApplyWindow();
  const bool shown = desk_.IsShown(*window_);
  if (shown && widget_->isHidden()) ShowWindow(transientParent);
  if (!shown && !widget_->isHidden()) widget_->hide();
}

void WindowBinding::ApplyWindow() {
  const QString title = Drawn(window_->caption);
  if (widget_->windowTitle() != title) widget_->setWindowTitle(title);
  const bool enabled = desk_.IsEnabled(*window_);
  if (widget_->isEnabled() != enabled) widget_->setEnabled(enabled);
  const bool busy = window_->mousePointer == MousePointer::Hourglass;
  if (busy != (widget_->cursor().shape() == Qt::WaitCursor)) {
    if (busy) {
      widget_->setCursor(Qt::WaitCursor);
    } else {
      widget_->unsetCursor();
    }
  }
}

void WindowBinding::ShowWindow(QWidget* transientParent) {
  const Desk::Entry& entry = desk_.Find(*window_);
  // Over a topmost window only another one is seen.
  const bool overTopmost = transientParent != nullptr &&
                           transientParent->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  widget_->setWindowFlag(Qt::WindowStaysOnTopHint, window_->topmost || overTopmost);
  widget_->setWindowModality(entry.modal ? Qt::ApplicationModal : Qt::NonModal);
  if (window_->left != 0 || window_->top != 0) {
    widget_->move(window_->left / kTwipsPerPixel, window_->top / kTwipsPerPixel);
  }
  if (transientParent != nullptr) {
    // Above its parent, and not held up by a parent that is modal.
    widget_->winId();
    widget_->windowHandle()->setTransientParent(transientParent->windowHandle());
    QRect place(QPoint(), widget_->size());
    place.moveCenter(transientParent->geometry().center());
    widget_->move(place.topLeft());
  }
  widget_->show();
  widget_->raise();
  widget_->activateWindow();
  for (const Bound& bound : bound_) bound.binding->Apply();  // what depends on the final size
}

void WindowBinding::ApplyFocus() {
  const Control* const focus = desk_.FocusOf(*window_);
  QWidget* const wanted = focus != nullptr ? WidgetOf(*focus) : nullptr;
  QWidget* const now = widget_->focusWidget();
  if (wanted != nullptr && (now != wanted || !wanted->hasFocus())) {
    wanted->setFocus(Qt::OtherFocusReason);
  } else if (wanted == nullptr && now != nullptr && BoundTo(now) != nullptr) {
    now->clearFocus();
  }
}

bool WindowBinding::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget_.get()) {
    if (event->type() == QEvent::Close) {
      event->ignore();
      context_.input.Close(*window_);
      return true;
    }
    if (event->type() == QEvent::Hide && context_.layout != nullptr) {
      const auto* const mainWindow = qobject_cast<const QMainWindow*>(widget_.get());
      if (mainWindow != nullptr) context_.layout->Save(*mainWindow);
    }
    if (event->type() == QEvent::Resize && !context_.applying) {
      context_.applying = true;
      for (const Bound& bound : bound_) bound.binding->Apply();
      context_.applying = false;
    }
    // Of a key that a page leaves over the press comes as nothing but the question for shortcuts.
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                       event->type() == QEvent::ShortcutOverride;
    // What a control with the focus leaves over has been answered there.
    return isKey && BoundTo(widget_->focusWidget()) == nullptr && FilterKey(nullptr, *event);
  }
  const Bound* const bound = BoundTo(watched);
  if (bound == nullptr) return false;
  switch (event->type()) {
    case QEvent::FocusIn:
      if (!context_.applying && IsUsersFocus(static_cast<QFocusEvent*>(event)->reason())) {
        context_.input.Focus(bound->control->Base());
      }
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return FilterKey(bound, *event);
    case QEvent::ToolTip:
      return ShowTip(*bound, static_cast<QHelpEvent&>(*event));
    case QEvent::ContextMenu:
      if (bound->control->As<ListView>() == nullptr ||
          static_cast<QContextMenuEvent*>(event)->reason() != QContextMenuEvent::Keyboard) {
        return false;
      }
      OpenListMenu(*bound);
      return true;
    case QEvent::MouseButtonPress:
      // A press that a label leaves to its panel stays the label's.
      if (IsClickable(*bound->control)) mousePressedIn_ = watched;
      return false;
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      FilterMouse(*bound, *event);
      return false;
    default:
      return false;
  }
}

bool WindowBinding::FilterKey(const Bound* bound, QEvent& event) {
  const auto& key = static_cast<QKeyEvent&>(event);
  const bool forward = key.key() == Qt::Key_Tab;
  const bool tab = forward || key.key() == Qt::Key_Backtab;
  QWidget* const widget = bound != nullptr ? bound->binding->Widget() : widget_.get();
  if (event.type() != QEvent::KeyRelease) {
    if (tab && event.type() == QEvent::KeyPress &&
        (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0) {
      // A page that has the focus has tab stops of its own.
      if (bound == nullptr && widget_->focusWidget() != nullptr) return false;
      if (bound != nullptr) {
        context_.input.Tab(bound->control->Base(), forward);
      } else {
        context_.input.Tab(*window_, forward);
      }
      return true;
    }
    pressedIn_ = widget;
    pressedKey_ = key.key();
    return bound != nullptr && FilterListKey(*bound, key);
  }
  if (tab || key.isAutoRepeat() || pressedIn_ != widget || pressedKey_ != key.key()) return false;
  pressedKey_ = 0;
  if (bound != nullptr) {
    context_.input.Key(bound->control->Base(), KeyCode(key.key()));
  } else {
    context_.input.Key(*window_, KeyCode(key.key()));
  }
  return false;
}

// Letters are the program's, not the view's, which would look through all its rows; Home and End
// mean the rows.
bool WindowBinding::FilterListKey(const Bound& bound, const QKeyEvent& key) {
  ListView* const list = bound.control->As<ListView>();
  if (list != nullptr && key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier) {
    OpenListMenu(bound);
    return true;
  }
  if (list == nullptr || (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0) {
    return false;
  }
  if (key.key() == Qt::Key_Home || key.key() == Qt::Key_End) {
    const int row = key.key() == Qt::Key_Home ? 1 : list->Count();
    context_.input.SelectRow(*list, row, MouseButton::Left, true);
    return true;
  }
  const int byte = key.text().size() == 1 ? CodePageByte(key.text()[0].unicode()) : 0;
  if (byte < ' ' || key.key() == Qt::Key_Delete) return false;
  context_.input.Type(*list, static_cast<char>(byte));
  return true;
}

// The tool tip with the shortcut, and the shortcut alone where there is no other tip.
bool WindowBinding::ShowTip(const Bound& bound, const QHelpEvent& event) {
  const Control& control = bound.control->Base();
  const QString keys =
      QKeySequence(QLatin1String(control.shortcut)).toString(QKeySequence::NativeText);
  if (keys.isEmpty()) return false;
  const QString tip = ToQString(control.toolTip);
  QToolTip::showText(event.globalPos(),
                     tip.isEmpty() ? keys : tip + QStringLiteral(" (") + keys + QLatin1Char(')'),
                     bound.binding->Widget());
  return true;
}

// The right mouse button on the selected row, by a key.
void WindowBinding::OpenListMenu(const Bound& bound) {
  ListView& list = *bound.control->As<ListView>();
  const auto& view = *qobject_cast<const QAbstractItemView*>(bound.binding->Widget());
  const QRect row = view.visualRect(view.currentIndex());
  context_.popUpPlace = view.viewport()->mapToGlobal(row.bottomLeft());
  context_.input.SelectRow(list, list.selected, MouseButton::Right, true);
  context_.popUpPlace = {};
}

// Labels and pictures take clicks, pictures tell that the mouse moves over them.
void WindowBinding::FilterMouse(const Bound& bound, QEvent& event) {
  if (!IsClickable(*bound.control)) return;
  PictureBox* const picture = bound.control->As<PictureBox>();
  if (event.type() == QEvent::MouseMove) {
    if (picture != nullptr) context_.input.Hover(*picture);
    return;
  }
  const auto& mouse = static_cast<QMouseEvent&>(event);
  const QWidget* const widget = bound.binding->Widget();
  const bool pressedHere = mousePressedIn_ == widget;
  mousePressedIn_ = nullptr;
  if (!pressedHere || mouse.button() != Qt::LeftButton) return;
  if (!widget->rect().contains(mouse.position().toPoint())) return;
  if (Label* const label = bound.control->As<Label>()) context_.input.Click(*label);
  if (picture != nullptr) context_.input.Click(*picture);
}

}  // namespace benevix
