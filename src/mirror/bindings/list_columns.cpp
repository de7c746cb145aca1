#include "mirror/bindings/list_columns.h"

#include <QHeaderView>
#include <QMenu>
#include <QShortcut>
#include <QTableView>

#include "controls/list_view.h"
#include "database/organization_list.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

void OfferColumns(QTableView& view, const ListView& list, const QPoint& place) {
  const QHeaderView& header = *view.horizontalHeader();
  QMenu menu(&view);
  for (int i = 0; i < ListView::kColumns; ++i) {
    const QString caption = ToQString(list.columns[static_cast<std::size_t>(i)]);
    QAction* const shown = menu.addAction(caption.isEmpty() ? QStringLiteral("Options") : caption);
    shown->setCheckable(true);
    shown->setChecked(!header.isSectionHidden(i));
    shown->setEnabled(i != column::kOrganization);
    QObject::connect(shown, &QAction::toggled, &view,
                     [&view, i](bool on) { view.setColumnHidden(i, !on); });
  }
  menu.exec(header.mapToGlobal(place));
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
  // These serve only the program.
  for (const int hidden : {column::kId, column::kRecord, column::kFee, column::kCardFee}) {
    view.setColumnHidden(hidden, true);
  }
  const int unit = view.fontMetrics().averageCharWidth();
  const int widths[ListView::kColumns] = {12, 46, 16, 18, 14, 20, 14, 14, 14, 14};  // characters
  header.setMinimumSectionSize(8 * unit);
  for (int i = 0; i < ListView::kColumns; ++i) header.resizeSection(i, widths[i] * unit);
  header.setSectionResizeMode(column::kOrganization, QHeaderView::Stretch);
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + 10);
}

}  // namespace benevix
