#include "mirror/mirror/window_layout.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QSplitter>
#include <QTableView>

#include "core/settings_store.h"
#include "database/organization_list.h"
#include "mirror/bindings/list_columns.h"
#include "mirror/look/texts.h"
#include "mirror/mirror/window_place.h"

namespace benevix {
namespace {

const std::string kPath = kSettingsPath + "\\Window";
constexpr QLatin1String kList("ListView1");
constexpr int kWidest = 10000;  // pixels of a column or a pane

// The numbers of a saved text, or none when there are not `count` of them from `least` to kWidest.
QList<int> Numbers(SettingsStore& settings, const char* name, qsizetype count, int least = 0) {
  QList<int> numbers;
  const QString text = ToQString(settings.GetString(Root::CurrentUser, kPath, name));
  for (const QString& word : text.split(QLatin1Char(','))) {
    bool isNumber = false;
    numbers.append(word.toInt(&isNumber));
    if (!isNumber || numbers.last() < least || numbers.last() > kWidest) return {};
  }
  return numbers.size() == count ? numbers : QList<int>();
}

void SaveNumbers(SettingsStore& settings, const char* name, const QList<int>& numbers) {
  QStringList words;
  for (const int number : numbers) words.append(QString::number(number));
  settings.SaveString(Root::CurrentUser, kPath, name, words.join(QLatin1Char(',')).toStdString());
}

}  // namespace

void WindowLayout::Restore(QMainWindow& window) const {
  const QList<int> size = Numbers(settings_, "Size", 3);  // width, height, whether maximized
  const QSize wanted = size.isEmpty() ? window.size() : QSize(size[0], size[1]);
  window.resize(wanted.boundedTo(RoomOnScreen(window)));
  if (!size.isEmpty() && size[2] != 0) window.setWindowState(Qt::WindowMaximized);
  if (auto* const splitter = window.findChild<QSplitter*>()) {
    const QList<int> sizes = Numbers(settings_, "Splitter", splitter->count());
    if (!sizes.isEmpty()) splitter->setSizes(sizes);
  }
  if (auto* const view = window.findChild<QTableView*>(kList)) {
    QHeaderView& header = *view->horizontalHeader();
    const QList<int> widths = Numbers(settings_, "Columns", header.count());
    for (int i = column::kOrganization; i < widths.size(); ++i) {
      header.setSectionHidden(i, widths[i] == 0);
    }
    FitColumns(*view);  // of what is shown now
    for (int i = column::kOrganization; i < widths.size(); ++i) {
      if (widths[i] != 0) header.resizeSection(i, widths[i]);
    }
  }
}

std::optional<QPoint> WindowLayout::Place() const {
  // A screen may stand to the left of the first one, or above it.
  const QList<int> place = Numbers(settings_, "Place", 2, -kWidest);
  return place.isEmpty() ? std::nullopt : std::optional(QPoint(place[0], place[1]));
}

void WindowLayout::Save(const QMainWindow& window) const {
  const QRect place = window.isMaximized() ? window.normalGeometry() : window.geometry();
  SaveNumbers(settings_, "Place", {place.x(), place.y()});
  SaveNumbers(settings_, "Size", {place.width(), place.height(), window.isMaximized() ? 1 : 0});
  if (const auto* const splitter = window.findChild<QSplitter*>()) {
    SaveNumbers(settings_, "Splitter", splitter->sizes());
  }
  if (const auto* const view = window.findChild<QTableView*>(kList)) {
    QList<int> widths;
    for (int column = 0; column < view->horizontalHeader()->count(); ++column) {
      widths.append(view->horizontalHeader()->sectionSize(column));  // 0 when it is hidden
    }
    SaveNumbers(settings_, "Columns", widths);
  }
}

}  // namespace benevix
