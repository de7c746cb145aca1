#include "mirror/bindings/list_columns.h"

#include <QHeaderView>
#include <QMenu>
#include <QShortcut>
#include <QTableView>

#include "controls/list_view.h"
#include "database/organization_list.h"
#include "mirror/bindings/column_room.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

// In average characters of the font.
constexpr int kNameLeast = 24;
constexpr int kNameMost = 60;
constexpr int kLastLeast = 18;

void OfferColumns(QTableView& view, const ListView& list, const QPoint& place) {
  const QHeaderView& header = *view.horizontalHeader();
  QMenu menu(&view);
  for (int i = column::kOrganization; i < ListView::kColumns; ++i) {
    const QString caption = ToQString(list.columns[static_cast<std::size_t>(i)]);
    QAction* const shown = menu.addAction(caption.isEmpty() ? QStringLiteral("Options") : caption);
    shown->setCheckable(true);
    shown->setChecked(!header.isSectionHidden(i));
    shown->setEnabled(i != column::kOrganization);
    QObject::connect(shown, &QAction::toggled, &view, [&view, i](bool on) {
      view.setColumnHidden(i, !on);
      FitColumns(view);
    });
  }
  menu.exec(header.mapToGlobal(place));
}

int LastColumn(const QHeaderView& header) {
  int last = header.count() - 1;
  while (last > 0 && header.isSectionHidden(last)) --last;
  return last;
}

}  // namespace

void LayOutColumns(QTableView& view, const ListView& list) {
  QHeaderView& header = *view.horizontalHeader();
  header.setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(&header, &QWidget::customContextMenuRequested, &view,
                   [&](const QPoint& place) { OfferColumns(view, list, place); });
  auto* const columns = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_K), &view);
  QObject::connect(columns, &QShortcut::activated, &view, [&view, &list, &header] {
    OfferColumns(view, list, QPoint(0, header.height()));
  });
  // All but the first serve only the program.
  for (const int hidden :
       {column::kCountry, column::kId, column::kRecord, column::kFee, column::kCardFee}) {
    view.setColumnHidden(hidden, true);
  }
  const int unit = view.fontMetrics().averageCharWidth();
  const int widths[ListView::kColumns] = {0, 46, 16, 18, 16, 20, 14, 14, 14, 14};  // characters
  header.setMinimumSectionSize(8 * unit);
  for (int i = column::kOrganization; i < ListView::kColumns; ++i) {
    header.resizeSection(i, widths[i] * unit);
  }
  QObject::connect(&header, &QHeaderView::sectionResized, &view, [&view, &header](int section) {
    const bool follows = section == column::kOrganization || section == LastColumn(header);
    if (!follows) FitColumns(view);
  });
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + 10);
}

void FitColumns(QTableView& view) {
  const int unit = view.fontMetrics().averageCharWidth();
  const ColumnRoom room{.names = column::kOrganization,
                        .least = kNameLeast * unit,
                        .most = kNameMost * unit,
                        .rest = LastColumn(*view.horizontalHeader()),
                        .restLeast = kLastLeast * unit};
  room.Share(*view.horizontalHeader(), view.viewport()->width());
}

}  // namespace benevix
