// Every window as users of the keyboard and of screen readers find it.

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <set>

#include "every_window.h"

namespace benevix {
namespace {

class WindowsTest : public testing::Test, protected EveryWindow {
 protected:
  WindowsTest() : EveryWindow(Scheme::Light) {}

  WindowBinding& BindingOf(const Desk::Entry& entry) { return *mirror.BindingOf(*entry.window); }
};

TEST_F(WindowsTest, EveryControlHasAWidgetAndEveryWidgetAControl) {
  // The main window is laid out without these pictures, frames and lines.
  const std::set<std::string> withoutWidget = {
      "frmBVX.Image1",   "frmBVX.Image2", "frmBVX.Image3", "frmBVX.Image4", "frmBVX.Image5",
      "frmBVX.Picture2", "frmBVX.Shape1", "frmBVX.Shape3", "frmBVX.Shape4", "frmBVX.Shape6",
      "frmBVX.Line1",    "frmBVX.Line2",  "frmBVX.Line3"};
  // Containers of the layout, and the lines that the page viewer and the desk fill.
  const std::set<std::string> withoutControl = {"QWidget", "QFrame", "QSplitter"};
  for (const Desk::Entry& entry : desk.Entries()) {
    std::set<const QWidget*> widgets;
    for (const NamedControl& control : entry.controls) {
      const std::string name = entry.name + "." + control.name;
      if (control.As<MenuItem>() != nullptr) {
        EXPECT_NE(BindingOf(entry).ActionOf(control, -1), nullptr) << name;
      }
      if (IsMenu(control) || control.As<Timer>() != nullptr ||
          control.As<HttpControl>() != nullptr) {
        continue;
      }
      const QWidget* const widget = BindingOf(entry).WidgetOf(control.Base());
      EXPECT_EQ(widget == nullptr, withoutWidget.count(name) != 0) << name << " " << control.index;
      widgets.insert(widget);
    }
    for (const QWidget* const widget : BindingOf(entry).Widget().findChildren<QWidget*>()) {
      const QString name = widget->objectName();
      const bool drawn = !name.isEmpty() && !name.startsWith(QStringLiteral("qt_"));
      if (drawn && name != QStringLiteral("hostLine") && name != QStringLiteral("activityLine") &&
          withoutControl.count(widget->metaObject()->className()) == 0) {
        EXPECT_EQ(widgets.count(widget), 1U) << entry.name << "." << name.toStdString();
      }
    }
  }
}

TEST_F(WindowsTest, CountriesAreChosenInTheirList) {
  frmPersInfo& contact = forms.Get<frmPersInfo>();
  input.Enter([&] { contact.Combo1.list = {"Canada", contact.Combo1.text = "Kenya", "U.S.A."}; });
  auto& combo = *qobject_cast<QComboBox*>(mirror.BindingOf(contact)->WidgetOf(contact.Combo1));
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_U);
  EXPECT_TRUE(combo.view()->isVisible());
  EXPECT_EQ(contact.Combo1.text, "Kenya");
  QTest::keyClick(combo.view(), Qt::Key_Return);
  EXPECT_EQ(contact.Combo1.text, "U.S.A.");
  QWheelEvent wheel({}, {}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&combo, &wheel);
  EXPECT_EQ(contact.Combo1.text, "U.S.A.");
}

// A widget that only contains others needs no name.
bool IsContainer(QAccessible::Role role) {
  const std::set<QAccessible::Role> containers = {
      QAccessible::Client, QAccessible::Border,   QAccessible::Pane, QAccessible::LayeredPane,
      QAccessible::Window, QAccessible::Splitter, QAccessible::Grip, QAccessible::Separator,
      QAccessible::Dialog};  // which may get its title when it is loaded
  return containers.count(role) != 0;
}

std::string Describe(QAccessibleInterface& item) {
  const QObject* const object = item.object();
  return (object == nullptr
              ? std::string("?")
              : object->metaObject()->className() + (" " + object->objectName().toStdString())) +
         " of role " + std::to_string(item.role());
}

void ExpectNames(QAccessibleInterface& item) {
  EXPECT_NE(item.role(), QAccessible::NoRole) << Describe(item);
  const auto* const label = qobject_cast<const QLabel*>(item.object());
  const bool saysNothing = label != nullptr && label->text().isEmpty() && label->pixmap().isNull();
  if (!IsContainer(item.role()) && (!saysNothing || item.role() == QAccessible::Link)) {
    EXPECT_FALSE(item.text(QAccessible::Name).isEmpty()) << Describe(item);
  }
  if (item.role() == QAccessible::Table) return;
  for (int i = 0; i < item.childCount(); ++i) {
    QAccessibleInterface* const child = item.child(i);
    if (child != nullptr && !child->state().invisible) ExpectNames(*child);
  }
}

TEST_F(WindowsTest, EveryControlHasANameARoleAndAValue) {
  for (const Desk::Entry& entry : desk.Entries()) {
    SCOPED_TRACE(entry.name);
    ExpectNames(*QAccessible::queryAccessibleInterface(&BindingOf(entry).Widget()));
    for (const NamedControl& control : entry.controls) {
      QWidget* const widget = BindingOf(entry).WidgetOf(control.Base());
      if (widget == nullptr) continue;
      QAccessibleInterface& item = *QAccessible::queryAccessibleInterface(widget);
      EXPECT_FALSE(item.text(QAccessible::Name).isEmpty()) << Describe(item);
      if (control.Base().shortcut[0] != 0) {
        EXPECT_FALSE(IsContainer(item.role())) << Describe(item);
      }
    }
  }
  const auto value = [this](const Control& control) {
    QWidget* const widget = mirror.BindingOf(forms.Get<frmBVX>())->WidgetOf(control);
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Value).toStdString();
  };
  input.Enter([this] { forms.Get<frmBVX>().Text1[0].Write("100"); });
  EXPECT_EQ(value(forms.Get<frmBVX>().Text1[0]), "100");
  EXPECT_EQ(value(forms.Get<frmBVX>().Shape5), kNoNews);
}

TEST_F(WindowsTest, TheListSpeaksItsHeadingsCellsAndSelectedRow) {
  input.Enter([this] { forms.Get<frmBVX>().ListView1.selected = 2; });
  QWidget* const view =
      mirror.BindingOf(forms.Get<frmBVX>())->WidgetOf(forms.Get<frmBVX>().ListView1);
  QAccessibleTableInterface* const table =
      QAccessible::queryAccessibleInterface(view)->tableInterface();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->columnDescription(1), QStringLiteral("Organization"));
  EXPECT_EQ(table->cellAt(1, 1)->text(QAccessible::Name), QStringLiteral("Org 2"));
  EXPECT_EQ(table->selectedRows(), QList<int>{1});
}

TEST_F(WindowsTest, LinksCanBePressedByAScreenReader) {
  int clicks = 0;
  events.On(forms.Get<frmBVX>().iLbl, Event::Click, [&](EventArgs&) { ++clicks; });
  QWidget* const label = mirror.BindingOf(forms.Get<frmBVX>())->WidgetOf(forms.Get<frmBVX>().iLbl);
  QAccessible::queryAccessibleInterface(label)->actionInterface()->doAction(
      QAccessibleActionInterface::pressAction());
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(clicks, 1);
}

// Tab moves by the order of the desk, and out of a page by the order of the toolkit.
TEST_F(WindowsTest, BothFrontEndsHaveOneTabOrder) {
  for (const Desk::Entry& entry : desk.Entries()) {
    std::vector<const QWidget*> logic;
    for (const NamedControl& control : entry.controls) {
      const QWidget* const widget = BindingOf(entry).WidgetOf(control.Base());
      if (widget != nullptr && Desk::TakesFocus(control)) logic.push_back(widget);
    }
    std::vector<const QWidget*> toolkit;
    QWidget& window = BindingOf(entry).Widget();
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
      if (std::find(logic.begin(), logic.end(), at) != logic.end()) toolkit.push_back(at);
    }
    EXPECT_EQ(toolkit, logic) << entry.name;
  }
}

bool Takes(QWidget& box, const QKeySequence& keys) {
  QKeyEvent event(QEvent::ShortcutOverride, keys[0].key(), keys[0].keyboardModifiers());
  event.ignore();
  QCoreApplication::sendEvent(&box, &event);
  return event.isAccepted();
}

TEST_F(WindowsTest, ShortcutsAreUniqueAndLeaveTheBoxesTheirKeys) {
  QLineEdit line;
  QPlainTextEdit lines;
  for (const Desk::Entry& entry : desk.Entries()) {
    std::set<QString> seen;
    for (const NamedControl& control : entry.controls) {
      for (const QKeySequence& keys :
           QKeySequence::listFromString(QLatin1String(control.Base().shortcut))) {
        const QString name = keys.toString();
        if (name.isEmpty()) continue;
        EXPECT_TRUE(seen.insert(name).second) << entry.name << " " << name.toStdString();
        if (name == kEnterShortcut || name == kEscapeShortcut) continue;
        const bool shared = name == "Ctrl+Z" || name == "Ctrl+Shift+Z" || name == "Ctrl+Y";
        EXPECT_EQ(Takes(line, keys) || Takes(lines, keys), shared)
            << entry.name << " " << name.toStdString();
      }
    }
  }
  // A box undoes what is typed in it; the program's own text cannot be undone there.
  QWidget* const donation = mirror.BindingOf(forms.Get<frmBVX>())
                                ->WidgetOf(forms.Get<frmBVX>().Text1[money_box::kDonation]);
  auto& box = dynamic_cast<QLineEdit&>(*donation);
  EXPECT_FALSE(Takes(box, QKeySequence::Undo));
  QTest::keyClicks(&box, "5");
  EXPECT_TRUE(Takes(box, QKeySequence::Undo));
}

void ExpectOwnLetters(const std::vector<QString>& texts, const std::string& where) {
  std::set<QKeySequence> seen;
  for (const QString& text : texts) {
    const QKeySequence keys = QKeySequence::mnemonic(text);
    EXPECT_FALSE(keys.isEmpty()) << where << ": " << text.toStdString() << " has no letter";
    EXPECT_TRUE(seen.insert(keys).second) << where << ": " << text.toStdString();
  }
}

void ExpectOwnLettersInMenus(const QMenu& menu) {
  std::vector<QString> texts;
  for (const QAction* const action : menu.actions()) {
    if (!action->text().isEmpty()) texts.push_back(action->text());
    if (action->menu() != nullptr) ExpectOwnLettersInMenus(*action->menu());
  }
  ExpectOwnLetters(texts, menu.title().toStdString());
}

TEST_F(WindowsTest, LettersOfAltAndOfEachMenuAreUnique) {
  for (const Desk::Entry& entry : desk.Entries()) {
    QWidget& window = BindingOf(entry).Widget();
    std::vector<QString> texts;
    for (const QPushButton* const button : window.findChildren<QPushButton*>()) {
      texts.push_back(button->text());
    }
    for (const QLabel* const label : window.findChildren<QLabel*>()) {
      const bool leads = label->buddy() != nullptr && label->buddy()->focusPolicy() != Qt::NoFocus;
      if (leads) texts.push_back(label->text());
    }
    for (const QMenu* const menu : window.findChildren<QMenu*>()) {
      if (menu->parent() == window.findChild<QMenuBar*>()) ExpectOwnLettersInMenus(*menu);
    }
    if (const auto* const main = qobject_cast<QMainWindow*>(&window)) {
      for (const QAction* const title : main->menuBar()->actions()) texts.push_back(title->text());
    }
    ExpectOwnLetters(texts, entry.name);
  }
  // "File" and "Favorites" mark the same letter: the first keeps it.
  const QAction* const favorites = mirror.BindingOf(forms.Get<frmBVX>())
                                       ->ActionOf({"TFavs", -1, &forms.Get<frmBVX>().TFavs}, -1);
  EXPECT_EQ(favorites->text(), QStringLiteral("F&avorites"));
}

TEST_F(WindowsTest, WhatEnterPressesLooksLikeIt) {
  for (const Desk::Entry& entry : desk.Entries()) {
    for (const NamedControl& control : entry.controls) {
      if (control.As<Button>() == nullptr ||
          control.Base().shortcut != std::string_view(kEnterShortcut)) {
        continue;
      }
      const QWidget* const widget = BindingOf(entry).WidgetOf(control.Base());
      EXPECT_EQ(widget->property("look").toString(), QStringLiteral("primary")) << entry.name;
    }
  }
}

}  // namespace
}  // namespace benevix
