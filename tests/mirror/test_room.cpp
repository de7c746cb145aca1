// Every window on small, usual and large screens: no text is cut, no control covers another or
// leaves its window, and amounts stand near their names.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <gtest/gtest.h>

#include "every_window.h"
#include "mirror/look/money_bar_widget.h"

namespace benevix {
namespace {

constexpr QSize kScreens[] = {{1024, 640}, {1440, 900}, {2560, 1440}};
constexpr QSize kFrame(8, 44);  // what the desktop draws around a window
constexpr int kInset = 8;       // before and behind the text of a cell

void FillMainWindow(frmBVX& main) {
  main.Label8.caption = "123,456.78";
  main.Label6.caption =
      "Verify your name shows correctly, then enter the donation as $ in the Donation box and "
      "press "
      "<Enter> ";
  main.ContinueNote.caption = "Opens after a Budget and a donation";
  main.UnfinishedText.caption =
      "Unfinished session of 2026-03-05 10:41: 12 donations, 123,456,789.00 of 123,456,789.00";
  main.PastGiftsText.caption =
      "Your gifts here: 12, 123,456,789.00 in all, 123,456.00 this year, last on 03-05-2026";
  using Part = MoneyBar::Part;
  const auto cents = [](std::int64_t count) { return Currency::FromUnits(100 * count); };
  main.BudgetUse.parts = {{Part::Use::Given, "Given", cents(1234567)},
                          {Part::Use::ServiceFees, "Service fees", cents(45000)},
                          {Part::Use::MethodFee, "Card fees taken", cents(34567)},
                          {Part::Use::MethodFee, "e-check fee taken", cents(500)},
                          {Part::Use::Left, "Left", cents(12345)}};
  main.BudgetUse.remark = "1,234.00 over the Budget";
  main.ListView1.SetCells(2, {"", "", "Environment", "1000000.00", "Stand-alone", "Anonymous"});
  for (Label& sum : main.GiftSum) sum.caption = "123,456,789.00";
}

// The texts are as long as they get. The viewer shows one of three things.
void Fill(EveryWindow& shown) {
  shown.input.Enter([&] {
    frmBVX& main = shown.forms.Get<frmBVX>();
    frmPayOpt& payment = shown.forms.Get<frmPayOpt>();
    frmReport& report = shown.forms.Get<frmReport>();
    frmYtdTag& ytd = shown.forms.Get<frmYtdTag>();
    frmInfo& info = shown.forms.Get<frmInfo>();
    FillMainWindow(main);
    const char* const fees[] = {"Service fees 450.00, Card fees 3,456.78, rounding 0.99",
                                "Service fees 450.00, rounding 0.99",
                                "Service fees 450.00, e-check fee 5.00, rounding 0.99"};
    for (std::size_t i = 0; i < 3; ++i) {
      main.ChargeAmount[i].caption = payment.ChargeAmount[i].caption = "123,456,789.00";
      main.ChargeFees[i].caption = payment.ChargeFees[i].caption = fees[i];
    }
    report.Totals.caption =
        "Given 123,456,789.00      Service fees 12,345.00      Card fees 12,345,678.00      Paid "
        "123,456,789.00";
    report.NotKnown.caption = "It is not known whether 12 sessions were paid";
    report.Unread.caption = "12 lines of the history could not be read";
    shown.forms.Get<frmPersInfo>().Missing.caption =
        "Missing: Full Name, Address, City, State, Postal Code, Country, E-mail";
    shown.forms.Get<frmWizard>().Label1.caption =
        "Choose the method you want Fees to be calculated";
    ytd.Organization.caption = "Biblioteca Errante del Chaco Verde";
    for (Label& amount : ytd.Label2) amount.caption = "$ 123,456,789.00";
    info.wb1.visible = info.Label2.visible = false;
  });
}

// What has changed is laid out from the inside to the outside, one step for each event.
void Settle() {
  constexpr int deep = 12;
  for (int i = 0; i < deep; ++i) QTest::qWait(0);
}

// Of a text of which one letter may be marked: it is drawn by itself, without kerning.
int WidthOf(const QString& text, const QFontMetrics& metrics) {
  const QStringList parts = text.split(QLatin1Char('&'));
  const int width = metrics.horizontalAdvance(parts.first());
  if (parts.size() == 1) return width;
  return width + metrics.horizontalAdvance(parts[1].left(1)) +
         metrics.horizontalAdvance(parts[1].mid(1));
}

bool HasRoom(const QLabel& label) {
  if (label.wordWrap()) return label.heightForWidth(label.width()) <= label.height();
  return WidthOf(label.text(), label.fontMetrics()) <= label.contentsRect().width() &&
         label.fontMetrics().height() <= label.contentsRect().height();
}

bool HasRoom(const QHeaderView& header) {
  QFont bold = header.font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  for (int i = 0; i < header.count(); ++i) {
    const QString caption = header.model()->headerData(i, header.orientation()).toString();
    if (header.orientation() == Qt::Vertical || header.isSectionHidden(i)) continue;
    if (metrics.horizontalAdvance(caption) + 2 * kInset > header.sectionSize(i)) return false;
  }
  return true;
}

// Only a name may be longer than its column: it is told whole when the mouse rests on it.
bool HasRoom(const QTableView& view) {
  const QAbstractItemModel& model = *view.model();
  for (int row = 0; row < model.rowCount(); ++row) {
    for (int i = 0; i < model.columnCount(); ++i) {
      const QModelIndex index = model.index(row, i);
      if (view.isColumnHidden(i) || i == column::kOrganization) continue;
      const QFontMetrics metrics(index.data(Qt::FontRole).isValid()
                                     ? index.data(Qt::FontRole).value<QFont>()
                                     : view.font());
      const int width = metrics.horizontalAdvance(index.data().toString());
      if (width + 2 * kInset > view.columnWidth(i)) return false;
    }
  }
  return true;
}

bool HasRoom(const QMenuBar& bar) {
  for (QAction* const title : bar.actions()) {
    if (title->isVisible() && !bar.rect().contains(bar.actionGeometry(title))) return false;
  }
  return true;
}

// Whether all that a widget says of its own can be seen.
bool ShowsItsText(const QWidget& widget) {
  const QFontMetrics metrics = widget.fontMetrics();
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) return HasRoom(*label);
  if (const auto* const bar = qobject_cast<const QMenuBar*>(&widget)) return HasRoom(*bar);
  if (const auto* const view = qobject_cast<const QTableView*>(&widget)) {
    return HasRoom(*view) && HasRoom(*view->horizontalHeader());
  }
  if (const auto* const edit = qobject_cast<const QLineEdit*>(&widget)) {
    return metrics.horizontalAdvance(edit->placeholderText()) + 2 * kInset <= edit->width();
  }
  if (const auto* const box = qobject_cast<const QGroupBox*>(&widget)) {
    return metrics.horizontalAdvance(box->title()) + 2 * kInset <= box->width();
  }
  const bool isWhole = qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                       qobject_cast<const QComboBox*>(&widget) != nullptr ||
                       dynamic_cast<const MoneyBarWidget*>(&widget) != nullptr;
  return !isWhole || (widget.sizeHint().width() <= widget.width() &&
                      widget.sizeHint().height() <= widget.height());
}

// A line that scrolls through a panel of its own.
bool Scrolls(const QWidget& widget) {
  return widget.parentWidget()->objectName().endsWith(QLatin1String("_track"));
}

void CheckRoom(const QWidget& window, const std::vector<const QWidget*>& controls) {
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->objectName().startsWith(QLatin1String("qt_"))) continue;
    EXPECT_TRUE(ShowsItsText(*widget)) << widget->objectName().toStdString() << " is cut";
  }
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const QWidget& one = *controls[i];
    const QRect place(one.mapTo(&window, QPoint()), one.size());
    EXPECT_TRUE(window.rect().contains(place)) << one.objectName().toStdString() << " leaves";
    for (std::size_t j = 0; j < i; ++j) {
      const QWidget& other = *controls[j];
      if (one.isAncestorOf(&other) || other.isAncestorOf(&one)) continue;
      EXPECT_FALSE(place.intersects(QRect(other.mapTo(&window, QPoint()), other.size())))
          << one.objectName().toStdString() << " covers " << other.objectName().toStdString();
    }
  }
}

// From the beginning of the names to the end of their amounts.
int GapOf(const QTableView& view, int name, int amount) {
  return view.columnViewportPosition(amount) + view.columnWidth(amount) -
         view.columnViewportPosition(name);
}

TEST(RoomTest, EveryWindowHasRoomOnEveryScreen) {
  for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
    EveryWindow shown(scheme);
    Fill(shown);
    for (const Desk::Entry& entry : shown.desk.Entries()) {
      WindowBinding& binding = *shown.mirror.BindingOf(*entry.window);
      QWidget& window = binding.Widget();
      const QSize drawn = window.size();
      for (const QSize screen : kScreens) {
        const QSize room = screen - kFrame;
        SCOPED_TRACE(entry.name + " on " + std::to_string(screen.width()));
        for (const QSize size : {drawn.boundedTo(room), room}) {
          window.resize(size);
          Settle();
          EXPECT_LE(window.width(), room.width());
          EXPECT_LE(window.height(), room.height());
          std::vector<const QWidget*> controls;
          for (const NamedControl& control : entry.controls) {
            const QWidget* const widget = binding.WidgetOf(control.Base());
            const bool stays = widget != nullptr && widget->isVisible() && !Scrolls(*widget);
            if (stays) controls.push_back(widget);
          }
          CheckRoom(window, controls);
        }
      }
    }
    const frmBVX& main = shown.forms.Get<frmBVX>();
    WindowBinding& binding = *shown.mirror.BindingOf(main);
    const auto& list = dynamic_cast<QTableView&>(*binding.WidgetOf(main.ListView1));
    const frmReport& report = shown.forms.Get<frmReport>();
    const auto& organizations =
        dynamic_cast<QTableView&>(*shown.mirror.BindingOf(report)->WidgetOf(report.Organizations));
    const auto& gifts = dynamic_cast<QTableView&>(*binding.WidgetOf(main.GiftRows));
    EXPECT_LT(GapOf(list, column::kOrganization, column::kAmount), 700);
    EXPECT_LT(GapOf(gifts, 0, 1), 700);
    EXPECT_LT(GapOf(organizations, 0, 2), 700);
    EXPECT_TRUE(gifts.isVisible());
    QWidget& window = binding.Widget();
    window.resize(1024, 720);  // from the largest
    Settle();
    EXPECT_EQ(window.width(), 1024);
    EXPECT_FALSE(gifts.isVisible());
  }
}

}  // namespace
}  // namespace benevix
