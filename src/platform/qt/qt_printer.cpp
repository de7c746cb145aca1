#include "platform/qt/qt_printer.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "base/runtime_error.h"
#include "base/text.h"

namespace benevix {
namespace {

constexpr int kPointSize = 9;

QFont LineFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setPointSize(kPointSize);
  return font;
}

// At least a sixteenth of the page's width, since some printers have no margins of their own.
void SetMargins(QPrinter& printer) {
  QPageLayout layout = printer.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const QMarginsF printable = layout.minimumMargins();
  const double margin = layout.fullRect().width() / 16;
  printer.setPageMargins(
      QMarginsF(std::max(printable.left(), margin), std::max(printable.top(), margin),
                std::max(printable.right(), margin), std::max(printable.bottom(), margin)),
      QPageLayout::Point);
}

// Replaces characters that might not fill a column: soft hyphens and non-printable ones.
QString Printable(const std::string& line) {
  constexpr QChar softHyphen(0xAD);
  QString text = QString::fromStdString(ToUtf8(line));
  for (QChar& character : text) {
    if (character == softHyphen) character = QLatin1Char('-');
    if (!character.isPrint()) character = QLatin1Char(' ');
  }
  return text;
}

// The length of the first row of `text` in `width` columns, broken at a blank where possible.
qsizetype RowLength(QStringView text, qsizetype width) {
  if (text.size() <= width) return text.size();
  const qsizetype blank = text.lastIndexOf(QLatin1Char(' '), width);
  return blank > 0 && !text.first(blank).trimmed().isEmpty() ? blank : width;
}

}  // namespace

QtPrinter::QtPrinter() = default;

QtPrinter::~QtPrinter() = default;

void QtPrinter::BeginDoc() {
  if (painter_) return;
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  if (info.isNull()) throw RuntimeError("There is no printer");
  auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
  printer->setDocName(QCoreApplication::applicationName());
  // Qt's default is A4 on any printer that supports it, whatever paper is loaded.
  if (info.defaultPageSize().isValid()) printer->setPageSize(info.defaultPageSize());
  SetMargins(*printer);
  auto painter = std::make_unique<QPainter>();
  if (!painter->begin(printer.get())) throw RuntimeError("The printer cannot be used");
  painter->setFont(LineFont());
  printer_ = std::move(printer);
  painter_ = std::move(painter);
  columnWidth_ = QFontMetricsF(painter_->font(), printer_.get()).horizontalAdvance(u'M');
  y_ = 0;
}

void QtPrinter::PrintLine(int column, const std::string& line) {
  BeginDoc();
  const int columns = std::max(static_cast<int>(painter_->viewport().width() / columnWidth_), 1);
  const int indent = std::max(column - 1, 0) % columns;
  const QString text = Printable(line);
  QStringView rest = text;
  do {
    const qsizetype length = RowLength(rest, columns - indent);
    PrintRow(indent, rest.first(length).toString());
    rest = rest.sliced(length);
    while (rest.startsWith(u' ')) rest = rest.sliced(1);
  } while (!rest.isEmpty());
}

void QtPrinter::PrintRow(int column, const QString& text) {
  const QFontMetricsF metrics(painter_->font(), printer_.get());
  if (y_ + metrics.height() > painter_->viewport().height()) {
    if (!printer_->newPage()) throw RuntimeError("The printer takes no further page");
    y_ = 0;
  }
  painter_->drawText(QPointF(column * columnWidth_, y_ + metrics.ascent()), text);
  y_ += metrics.lineSpacing();
}

void QtPrinter::EndDoc() {
  if (!painter_) return;
  painter_->end();
  painter_.reset();
  printer_.reset();
}

}  // namespace benevix
