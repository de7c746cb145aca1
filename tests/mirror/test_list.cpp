// The list's view, off the screen.

#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

#include "../sample_list.h"
#include "every_window.h"

namespace benevix {
namespace {

class ListTest : public testing::Test {
 protected:
  template <class W>
  W& Widget(const Control& control) {
    return *qobject_cast<W*>(shown.mirror.BindingOf(main)->WidgetOf(control));
  }

  EveryWindow shown{Scheme::Light};
  frmBVX& main = shown.forms.Get<frmBVX>();
  Input& input = shown.input;
};

TEST_F(ListTest, ALongListIsWalkedByItsKeys) {
  struct Rows : SampleRows {
    [[nodiscard]] int Count() const override { return 2'000'000; }
  };
  auto& view = Widget<QTableView>(main.ListView1);
  input.Enter([this] { main.ListView1.SetRows(std::make_shared<Rows>()); });
  view.setFocus(Qt::TabFocusReason);
  const int page = view.viewport()->height() / view.visualRect(view.model()->index(0, 1)).height();
  QTest::keyClick(&view, Qt::Key_Home);
  for (const auto& [key, next] : {std::pair(Qt::Key_Down, 2), std::pair(Qt::Key_PageDown, 2 + page),
                                  std::pair(Qt::Key_End, 2'000'000),
                                  std::pair(Qt::Key_Up, 1'999'999), std::pair(Qt::Key_Home, 1)}) {
    QTest::keyClick(&view, key);
    EXPECT_EQ(main.ListView1.selected, next);
    const QRect drawn = view.visualRect(view.currentIndex());
    EXPECT_TRUE(view.viewport()->rect().contains(QRect(0, drawn.top(), 1, drawn.height()))) << next;
  }
  view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    view.visualRect(view.model()->index(1'999'999, 1)).center());
  EXPECT_EQ(main.ListView1.selected, 2'000'000);
}

TEST_F(ListTest, AListIsNewAtTheAddressOfTheLastOneAndScrolls) {
  struct Rows : SampleRows {
    [[nodiscard]] int Count() const override { return count; }
    [[nodiscard]] std::string Text(int row, int column) const override {
      return SampleRows::Text(row, column) + std::string(column == 1 ? 300 : 0, 'n');
    }
    int count = 2;
  };
  const auto rows = std::make_shared<Rows>();
  const auto& view = Widget<QTableView>(main.ListView1);
  input.Enter([&] { main.ListView1.SetRows(rows); });
  rows->count = 5;
  input.Enter([&] { main.ListView1.SetRows(rows); });
  EXPECT_EQ(view.model()->rowCount(), 5);
  // A name that is cut off is told, in place of the list's key.
  const auto tipAt = [&](int column) {
    const QPoint place = view.visualRect(view.model()->index(1, column)).center();
    QHelpEvent hover(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view.viewport(), &hover);
    return QToolTip::text();
  };
  EXPECT_TRUE(tipAt(1).startsWith(QStringLiteral("Org 2n")));
  EXPECT_EQ(tipAt(2), QStringLiteral("Ctrl+L"));
  rows->count = 500;
  input.Enter([&] {
    main.ListView1.SetRows(rows);
    main.ListView1.EnsureVisible(300);
  });
  EXPECT_EQ(view.indexAt(QPoint(1, 1)).row(), 299);
}

}  // namespace
}  // namespace benevix
