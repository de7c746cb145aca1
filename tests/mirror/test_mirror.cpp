// The mirror between structs and real widgets, off the screen.

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

#include "../sample_list.h"
#include "controls/desk.h"
#include "controls/input.h"
#include "core/wait_notice.h"
#include "forms/frmBVX.h"
#include "forms/frmPayOpt.h"
#include "forms/frmYtdTag.h"
#include "mirror/look/theme.h"
#include "mirror/mirror/mirror.h"
#include "mirror/mirror/qt_message_boxes.h"
#include "mirror/mirror/window_place.h"

namespace benevix {
namespace {

class MirrorTest : public testing::Test {
 protected:
  MirrorTest() {
    desk.Add(main);
    desk.Add(payment);
    desk.Add(wait);
    desk.Add(ytd);
    events.On(main.Text1, Event::KeyPress, [](int, EventArgs& args) {
      if ((args.key < '0' || args.key > '9') && args.key != '.') args.key = 0;
    });
    events.On(main.Text1, Event::GotFocus,
              [this](int index, EventArgs&) { ++main.Text1[index].selections; });
    events.On(main.Text1, Event::KeyUp,
              [this](int, EventArgs& args) { keys += static_cast<char>(args.key); });
    events.On(main.Command1, Event::Click, [this](EventArgs&) { ++clicks; });
    main.Command1.enabled = true;
    main.Text1[2].enabled = true;
    mirror.Attach(desk, input);
    input.Enter([this] { desk.Show(main); });
    QTest::qWait(0);
  }
  ~MirrorTest() override { mirror.Detach(); }

  template <class W>
  W& Widget(const Control& control) {
    return *qobject_cast<W*>(mirror.BindingOf(main)->WidgetOf(control));
  }
  void ClickOn(QWidget& widget) {
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget.mapTo(widget.window(), widget.rect().center()));
    QTest::qWait(0);
  }

  EventTable events;
  frmBVX main;
  frmPayOpt payment;
  frmWait wait;
  frmYtdTag ytd;
  Desk desk{events};
  Input input{desk, events};
  Mirror mirror{Scheme::Light, Mirror::Timers::Hold};
  int clicks = 0;
  std::string keys;
};

TEST_F(MirrorTest, PastedTextPassesTheKeyFilterCharacterByCharacter) {
  QLineEdit& edit = Widget<QLineEdit>(main.Text1[2]);
  ClickOn(edit);
  QGuiApplication::clipboard()->setText(QStringLiteral("-1a2,3.4 \u0416"));
  edit.paste();
  EXPECT_EQ(main.Text1[2].text, "123.4");
  EXPECT_EQ(edit.text(), QStringLiteral("123.4"));
  EXPECT_TRUE(main.Text1[2].typed);
  // What was refused is told at the box once the change is done.
  QTest::qWait(0);
  EXPECT_EQ(main.Text1[2].note, main.Text1[2].takes);
  const auto& bubble = *edit.window()->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  EXPECT_LT(bubble.height(), 2 * bubble.fontMetrics().height());  // a short note is one line
  EXPECT_TRUE(bubble.isVisible() && edit.window()->rect().contains(bubble.geometry()));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&edit)->text(QAccessible::Description),
            QLatin1String(main.Text1[2].takes));
  // Into the middle of the text, and over a selection, which stays when nothing is let in.
  edit.setCursorPosition(1);
  edit.insert(QStringLiteral("x9"));
  EXPECT_EQ(main.Text1[2].text, "1923.4");
  edit.selectAll();
  edit.insert(QStringLiteral("abc"));
  EXPECT_EQ(main.Text1[2].text, "1923.4");
  EXPECT_EQ(edit.selectedText(), QStringLiteral("1923.4"));
  edit.insert(QStringLiteral("1\u0416"));  // repeats what it replaces
  EXPECT_EQ(main.Text1[2].text, "1");
}

TEST_F(MirrorTest, EnterAnswersNoWhereYesWouldPayAgain) {
  QtMessageBoxes boxes(mirror);
  boxes.onShown = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); };
  EXPECT_EQ(boxes.Show("", "", BoxIcon::Question, BoxButtons::YesNo), BoxAnswer::Yes);
  EXPECT_EQ(boxes.Show("", "", BoxIcon::Question, BoxButtons::NoByDefault), BoxAnswer::No);
}

TEST_F(MirrorTest, WhatTheProgramWritesPassesWholeAndIsReplacedByTyping) {
  QLineEdit& edit = Widget<QLineEdit>(main.Text1[2]);
  input.Enter([this] { main.Text1[2].Write("1,000.00"); });
  EXPECT_EQ(edit.text(), QStringLiteral("1,000.00"));
  ClickOn(edit);
  EXPECT_EQ(edit.selectedText(), QStringLiteral("1,000.00"));
  QTest::keyClick(edit.window()->windowHandle(), Qt::Key_7);
  EXPECT_EQ(main.Text1[2].text, "7");
}

TEST_F(MirrorTest, KeyUpNeedsItsPressInTheSameControlAndNoWaitBetween) {
  QLineEdit& edit = Widget<QLineEdit>(main.Text1[2]);
  ClickOn(edit);
  QWindow* const window = edit.window()->windowHandle();
  QTest::keyPress(window, Qt::Key_Return);
  ClickOn(Widget<QLineEdit>(main.Text1[0]));
  QTest::keyRelease(window, Qt::Key_Return);
  QTest::keyPress(window, Qt::Key_Return);
  mirror.Begin();
  mirror.End();
  QTest::keyRelease(window, Qt::Key_Return);
  EXPECT_EQ(keys, "");
  QTest::keyClick(window, Qt::Key_Return);
  EXPECT_EQ(keys, std::string(1, '\r'));
}

TEST_F(MirrorTest, ShortcutsWorkWhereTheirControlCanBeUsed) {
  std::string heard;
  events.On(main.mnuNew, Event::Click, [&](EventArgs&) { heard += "new "; });
  events.On(main.iLbl, Event::Click, [&](EventArgs&) { heard += "ytd "; });
  QWindow* const window = mirror.BindingOf(main)->Widget().windowHandle();
  const auto press = [&] {
    window->requestActivate();
    QTest::qWait(0);
    QTest::keySequence(window, QStringLiteral("Ctrl+N"));
    QTest::keySequence(window, QStringLiteral("Ctrl+Shift+Y"));
    QTest::qWait(0);
    return std::exchange(heard, {});
  };
  EXPECT_EQ(press(), "new ytd ");
  input.Enter([this] { main.mnuNew.enabled = main.iLbl.enabled = false; });
  EXPECT_EQ(press(), "");
  input.Enter([this] { main.mnuNew.enabled = main.iLbl.enabled = true; });
  input.Enter([&] {
    const WaitScope request(mirror);
    EXPECT_EQ(press(), "");
  });
  input.Enter([this] { desk.Show(payment, Modality::Modeless, Attention::KeepsMainDisabled); });
  EXPECT_EQ(press(), "");
  // While no control of a window has the focus, the keys of the window itself still work.
  input.Enter([this] { desk.ClearFocus(payment); });
  QTest::keyClick(mirror.BindingOf(payment)->Widget().windowHandle(), Qt::Key_Escape);
  QTest::qWait(0);
  EXPECT_FALSE(desk.IsShown(payment));
  EXPECT_EQ(press(), "new ytd ");
}

TEST_F(MirrorTest, TheFocusAloneChoosesNoRow) {
  auto& view = Widget<QTableView>(main.ListView1);
  input.Enter([this] { main.ListView1.SetRows(std::make_shared<SampleRows>()); });
  view.setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(view.hasFocus());
  EXPECT_EQ(main.ListView1.selected, 0);
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_GT(main.ListView1.selected, 0);
}

TEST_F(MirrorTest, TheSecondPressOfADoubleClickIsNoClick) {
  const auto doubleClick = [this](const Control& control, QPoint place) {
    auto& widget = Widget<QWidget>(control);
    QTest::mouseDClick(widget.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       widget.mapTo(widget.window(), place));
  };
  doubleClick(main.Command1, {9, 9});
  EXPECT_EQ(clicks, 1);
  doubleClick(main.Check2, {9, 9});
  EXPECT_EQ(main.Check2.value, 1);
  ClickOn(Widget<QPushButton>(main.Command1));
  EXPECT_EQ(clicks, 2);
}

TEST_F(MirrorTest, ALongRequestShowsABusyPointerAndWhatIsGoingOn) {
  const auto& line = *mirror.BindingOf(main)->Widget().findChild<QLabel*>("activityLine");
  input.Enter([&] {
    desk.SetActivity("Asking...");
    const WaitScope request(mirror);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_TRUE(line.isVisible());
    EXPECT_EQ(line.text(), QStringLiteral("Asking..."));
    EXPECT_TRUE(Widget<QPushButton>(main.Command1).property("waits").toBool());
    EXPECT_EQ(Widget<QLabel>(main.Label6).text().toStdString(), main.Label6.caption);
    EXPECT_EQ(mirror.BindingOf(main)->Widget().cursor().shape(), Qt::ArrowCursor);
    desk.SetActivity({});
  });
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_FALSE(line.isVisible());
  EXPECT_FALSE(Widget<QPushButton>(main.Command1).property("waits").toBool());
}

TEST_F(MirrorTest, TheYearToDateWindowStandsBesideItsFrameAndLeavesTheKeys) {
  input.Enter([this] { desk.Show(ytd); });
  const QWidget& shown = mirror.BindingOf(ytd)->Widget();
  const auto& frame = Widget<QWidget>(main.Frame9);
  EXPECT_TRUE(shown.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_FALSE(shown.geometry().contains(frame.mapToGlobal(frame.rect().center())));
  const QRect screen(0, 20, 1000, 600);
  const QSize size(200, 100);
  EXPECT_EQ(Beside(size, {600, 300, 100, 30}, screen), QRect(QPoint(708, 300), size));
  EXPECT_EQ(Beside(size, {880, 300, 100, 30}, screen), QRect(QPoint(800, 338), size));
  EXPECT_EQ(Beside(size, {880, 580, 100, 30}, screen), QRect(QPoint(672, 510), size));
  EXPECT_EQ(Inside({-5, -5, 2000, 30}, screen).topLeft(), screen.topLeft());
  // What opens then belongs to the main window, in whose middle it comes up.
  input.Enter([this] { desk.Show(payment); });
  EXPECT_EQ(mirror.BindingOf(payment)->Widget().windowHandle()->transientParent(),
            mirror.BindingOf(main)->Widget().windowHandle());
}

TEST_F(MirrorTest, AMinimizedWindowComesToTheFrontAsItWas) {
  QWidget& window = mirror.BindingOf(main)->Widget();
  window.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
  mirror.BringToFront();
  EXPECT_EQ(window.windowState(), Qt::WindowMaximized | (window.windowState() & Qt::WindowActive));
}

TEST_F(MirrorTest, AmountsAreDrawnWholeAndAnAcceptedBudgetLarger) {
  auto& budget = Widget<QLineEdit>(main.Text1[0]);
  const double before = budget.font().pointSizeF();
  const int height = budget.height();
  input.Enter([this] { main.Text1[0].fontSize = 9; });
  EXPECT_DOUBLE_EQ(budget.font().pointSizeF(), before * 9 / 8);
  input.Enter([this] {
    main.Text1[0].fontBold = true;
    main.Text1[0].Write("123,456,789.00");
  });
  QTest::qWait(0);
  EXPECT_LT(QFontMetrics(budget.font()).horizontalAdvance(budget.text()), budget.width() - 20);
  EXPECT_EQ(budget.height(), height);
}

TEST_F(MirrorTest, InputDuringAWaitIsThrownAway) {
  QPushButton& button = Widget<QPushButton>(main.Command1);
  mirror.Begin();
  ClickOn(button);
  button.window()->close();
  mirror.End();
  QTest::qWait(0);
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(desk.IsShown(main));
  ClickOn(button);
  EXPECT_EQ(clicks, 1);
}

TEST_F(MirrorTest, TheWaitNoticeFollowsTheBytesOfARequestAndGoes) {
  const auto window = [&]() -> QWidget& { return mirror.BindingOf(wait)->Widget(); };
  input.Enter([&] {
    WaitNotice notice({wait, desk, mirror});
    const WaitScope request(mirror);
    ASSERT_TRUE(window().isVisible());
    auto& bar = *window().findChild<QProgressBar*>();
    EXPECT_EQ(bar.maximum(), 0);  // nothing is known yet
    const auto progress = notice.Progress();
    progress(7, 0);
    EXPECT_EQ(bar.maximum(), 0);
    progress(50'000'000, 200'000'000);
    EXPECT_EQ(bar.maximum(), 100);
    EXPECT_EQ(bar.value(), 25);
    progress(300, 200);
    EXPECT_EQ(bar.value(), 100);
  });
  EXPECT_EQ(mirror.BindingOf(wait), nullptr);
  input.Enter([&] {
    const WaitNotice again({wait, desk, mirror});
    mirror.DoEvents();
    EXPECT_EQ(window().findChild<QProgressBar*>()->maximum(), 0);
  });
}

TEST_F(MirrorTest, TheMainWindowIsDisabledWhileAWindowKeepsTheAttention) {
  input.Enter([this] { desk.Show(payment, Modality::Modeless, Attention::KeepsMainDisabled); });
  QWidget& window = mirror.BindingOf(main)->Widget();
  ClickOn(Widget<QPushButton>(main.Command1));
  window.close();
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(window.isVisible());
  mirror.BindingOf(payment)->Widget().close();
  QTest::qWait(0);
  EXPECT_TRUE(window.isEnabled());
  ClickOn(Widget<QPushButton>(main.Command1));
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace benevix
