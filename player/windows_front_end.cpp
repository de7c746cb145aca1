#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <algorithm>

#include "mirror/look/texts.h"
#include "mirror/mirror/mirror.h"
#include "mirror/mirror/qt_message_boxes.h"
#include "player/clicked_boxes.h"
#include "player/front_end.h"
#include "player/waiting.h"
#include "player/widget_properties.h"
#include "player/words.h"

namespace benevix {
namespace {

// A key goes to the window, which passes it to the widget that has the focus.
void SendKey(QWidget& widget, int key, const QString& text,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWindow* const window = widget.window()->windowHandle();
  if (window == nullptr) return;
  const QPointer<QWindow> alive(window);
  QTest::simulateEvent(window, true, key, modifiers, text, false, -1);
  if (alive) QTest::simulateEvent(alive, false, key, modifiers, text, false, -1);
}

void SendCharacter(QWidget& widget, QChar c) {
  if (c == QLatin1Char('\n')) return SendKey(widget, Qt::Key_Return, QStringLiteral("\r"));
  SendKey(widget, c.toUpper().unicode(), QString(c));
  // A refused character is told after it, and before the next one.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
}

void SendNamedKey(QWidget& widget, const std::string& key) {
  if (key == kEnterKey) return SendKey(widget, Qt::Key_Return, QStringLiteral("\r"));
  if (key == kTabKey) return SendKey(widget, Qt::Key_Tab, QStringLiteral("\t"));
  if (key == kEscapeKey) return SendKey(widget, Qt::Key_Escape, QStringLiteral("\x1b"));
  if (key == kBackspaceKey) return SendKey(widget, Qt::Key_Backspace, QStringLiteral("\b"));
  const QString text = ToQString(key);
  if (!text.isEmpty()) SendCharacter(widget, text[0]);
}

// What a click does something to: the kinds that scripts can click.
bool IsClickable(const NamedControl& control) {
  return control.As<Button>() != nullptr || control.As<OptionButton>() != nullptr ||
         control.As<CheckBox>() != nullptr || control.As<Label>() != nullptr ||
         control.As<PictureBox>() != nullptr || control.As<Shape>() != nullptr;
}

// Where a click takes effect: options and check boxes answer on their mark and text only.
QPoint ClickPoint(const QWidget& widget) {
  const QPoint center = widget.rect().center();
  const bool marked = widget.inherits("QRadioButton") || widget.inherits("QCheckBox");
  return marked ? QPoint(std::min(10, center.x()), center.y()) : center;
}

// The real windows: keys, clicks and menu choices go through the widgets and their windows, and
// what is checked is read back from them.
class WindowsFrontEnd : public FrontEnd {
 public:
  WindowsFrontEnd(BoxAnswers& answers, std::string shots)
      : mirror_(scheme_, Mirror::Timers::Hold), boxes_(mirror_, answers), shots_(std::move(shots)) {
    ApplyTheme(*qApp, scheme_);
  }

  void Start(Program& program) override {
    program_ = &program;
    mirror_.Attach(program.TheDesk(), program.TheInput());
  }

  void Stop() override {
    mirror_.Detach();
    program_ = nullptr;
    Settle();
  }

  bool Click(const Target& target) override {
    if (IsMenu(*target.control)) return ClickMenu(target);
    QWidget* const widget = IsClickable(*target.control) ? Reach(target) : nullptr;
    if (widget == nullptr) return false;
    ClickAt(*widget, ClickPoint(*widget));
    Settle();
    return true;
  }

  bool Type(const Target& target, const std::string& text) override {
    const QPointer<QWidget> alive(Empty(target));
    if (!alive) return false;
    QString typed = ToQString(text);
    typed.remove(QLatin1Char('\r'));
    for (const QChar c : typed) {
      if (!alive) break;
      SendCharacter(*alive, c);
    }
    Settle();
    return true;
  }

  bool Paste(const Target& target, const std::string& text) override {
    QWidget* const widget = Empty(target);
    if (widget == nullptr) return false;
    QGuiApplication::clipboard()->setText(ToQString(text));
    SendKey(*widget, Qt::Key_V, QString(), Qt::ControlModifier);
    Settle();
    return true;
  }

  bool Press(const Target& target, const std::string& key) override {
    QWidget* const widget = Desk::TakesFocus(*target.control) ? Reach(target) : nullptr;
    if (widget == nullptr || !GiveFocus(target, *widget)) return false;
    SendNamedKey(*widget, key);
    Settle();
    return true;
  }

  bool Select(const Target& target, int row, MouseButton button) override {
    auto* const view = qobject_cast<QTableView*>(Reach(target));
    if (view == nullptr || row < 1) return false;
    const auto* const list = target.control->As<ListView>();
    if (list != nullptr && row > list->Count()) return false;
    const int place = list != nullptr ? list->PlaceOf(row) : row;
    const QModelIndex index = view->model()->index(place - 1, 1);
    if (!index.isValid()) return false;
    view->scrollTo(index);
    ClickAt(*view->viewport(), view->visualRect(index).center(),
            button == MouseButton::Right ? Qt::RightButton : Qt::LeftButton);
    Settle();
    return true;
  }

  bool ClickColumn(const Target& target, int column) override {
    auto* const view = qobject_cast<QTableView*>(Reach(target));
    if (view == nullptr) return false;
    QHeaderView& header = *view->horizontalHeader();
    const int left = header.sectionViewportPosition(column);
    if (left < 0) return false;
    ClickAt(*header.viewport(), {left + header.sectionSize(column) / 2, header.height() / 2});
    Settle();
    return true;
  }

  bool Pick(const Target& target, const std::string& entry) override {
    auto* const combo = qobject_cast<QComboBox*>(Reach(target));
    if (combo == nullptr || !GiveFocus(target, *combo)) return false;
    combo->hidePopup();
    const int index = combo->findText(ToQString(entry), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) return false;
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
    Settle();
    return true;
  }

  bool Leave(const Target& target) override {
    QWidget* const widget = Desk::TakesFocus(*target.control) ? Reach(target) : nullptr;
    if (widget == nullptr || !GiveFocus(target, *widget)) return false;
    const bool left = program_->TheInput().Leave(target.control->Base());
    Settle();
    return left;
  }

  bool Hover(const Target& target) override {
    QWidget* const widget = Reach(target);
    if (widget == nullptr) return false;
    QWidget* const top = widget->window();
    QTest::mouseMove(top->windowHandle(), widget->mapTo(top, widget->rect().center()));
    Settle();
    return true;
  }

  bool Scroll(const Target& target, int value) override {
    auto* const bar = qobject_cast<QScrollBar*>(Reach(target));
    if (bar == nullptr || value < bar->minimum() || value > bar->maximum()) return false;
    bar->setValue(value);
    Settle();
    return true;
  }

  bool Tick(const Target& target, int times) override {
    ClosePopUps();
    Timer* const timer = target.control->As<Timer>();
    if (timer == nullptr || !target.window->loaded || program_->TheDesk().Ended()) return false;
    for (int i = 0; i < times && program_->TheInput().Tick(*timer); ++i) Settle();
    return true;
  }

  bool Arrive(const Target& target, const std::string& address) override {
    QWidget* const widget = Reach(target);
    const auto* const viewer = target.control->As<PageViewer>();
    if (widget == nullptr || viewer == nullptr) return false;
    return LeadPage(*widget, QUrl(ToQString(address)), [&] { return viewer->shown == address; });
  }

  bool Close(Desk::Entry& window) override {
    ClosePopUps();
    WindowBinding* const binding = mirror_.BindingOf(*window.window);
    const Desk& desk = program_->TheDesk();
    if (binding == nullptr || !(desk.IsUsable(*window.window) || desk.IsRequesting())) return false;
    binding->Widget().close();
    Settle();
    return true;
  }

  bool Shot(const std::string& name) override {
    if (shots_.empty()) return true;
    Settle();
    const auto& shown = program_->TheDesk().Shown();
    WindowBinding* const binding = shown.empty() ? nullptr : mirror_.BindingOf(*shown.back());
    if (binding == nullptr || !WaitForPage(binding->Widget())) return false;
    const QDir folder(QString::fromStdString(shots_));
    return folder.mkpath(QStringLiteral(".")) &&
           binding->Widget().grab().save(folder.filePath(ToQString(name) + ".png"));
  }

  void Cover() override {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->isVisible()) window->showMinimized();
    }
    Settle();
  }
  void BringToFront() override {
    mirror_.BringToFront();
    Settle();
  }
  [[nodiscard]] bool IsInFront() const override {
    const QWidget* const window = QApplication::activeWindow();
    return window != nullptr && !window->isMinimized();
  }

  std::optional<std::string> Read(const Target& target, const std::string& property) override {
    return ReadWidgetProperty(*program_, mirror_.BindingOf(*target.window->window), target,
                              property, scheme_);
  }

  MessageBoxes& Boxes() override { return boxes_; }

  Waits& TheWaits() override { return mirror_; }

 private:
  void Settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  // As a user's next action does. An open one would take the clicks that answer a message box.
  void ClosePopUps() {
    while (QWidget* const popUp = QApplication::activePopupWidget()) popUp->close();
    Settle();
  }

  QWidget* WidgetOf(const Target& target) const {
    const WindowBinding* const binding = mirror_.BindingOf(*target.window->window);
    if (binding == nullptr || target.control == nullptr) return nullptr;
    return binding->WidgetOf(target.control->Base());
  }

  // What is folded away for want of room: the user makes the window larger.
  void MakeRoomFor(const QWidget* widget) {
    constexpr QSize large(2560, 1440);
    if (widget == nullptr || !widget->window()->isVisible()) return;
    if (!widget->isHidden() && !widget->isVisible()) widget->window()->resize(large);
    Settle();
  }

  // The widget of a control that the user can reach, made the front one; null when he cannot.
  QWidget* Reach(const Target& target) {
    ClosePopUps();
    QWidget* const widget = WidgetOf(target);
    MakeRoomFor(widget);
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) return nullptr;
    if (!program_->TheDesk().IsUsable(*target.window, target.control->Base())) return nullptr;
    widget->window()->activateWindow();
    Settle();
    return widget;
  }

  // The widget with the focus and without a text; null when it cannot be reached.
  QWidget* Empty(const Target& target) {
    QWidget* const widget = Reach(target);
    if (widget == nullptr || !GiveFocus(target, *widget)) return nullptr;
    if (WidgetText(*widget) != QString()) {
      SendKey(*widget, Qt::Key_A, QString(), Qt::ControlModifier);
      SendKey(*widget, Qt::Key_Delete, QString());
    }
    return widget;
  }

  bool GiveFocus(const Target& target, QWidget& widget) {
    const Desk& desk = program_->TheDesk();
    if (desk.FocusOf(*target.window->window) != &target.control->Base()) {
      if (IsClickable(*target.control)) {
        widget.setFocus(Qt::TabFocusReason);  // a click would do more
      } else {
        ClickAt(widget, widget.rect().center());
      }
      Settle();
    }
    return desk.FocusOf(*target.window->window) == &target.control->Base();
  }

  bool ClickMenu(const Target& target) {
    ClosePopUps();
    const WindowBinding* const binding = mirror_.BindingOf(*target.window->window);
    QAction* const action =
        binding == nullptr ? nullptr : binding->ActionOf(*target.control, target.element);
    if (action == nullptr || !action->isEnabled()) return false;
    if (!program_->TheDesk().IsUsable(*target.window, target.control->Base())) return false;
    action->trigger();
    Settle();
    return true;
  }

  const Scheme scheme_ = DesktopScheme();
  Mirror mirror_;
  ClickedBoxes boxes_;
  std::string shots_;
  Program* program_ = nullptr;
};

}  // namespace

std::unique_ptr<FrontEnd> MakeWindowsFrontEnd(BoxAnswers& answers, const std::string& shots) {
  return std::make_unique<WindowsFrontEnd>(answers, shots);
}

bool IsDisplayNamed() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

}  // namespace benevix
