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

// Some printers leave no margin at all; a sixteenth of the page's width looks well on any paper.
void WidenMargins(QPrinter& printer) {
  QPageLayout layout = printer.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const QMarginsF smallest = layout.minimumMargins();
  const double least = layout.fullRect().width() / 16;
  printer.setPageMargins(
      QMarginsF(std::max(smallest.left(), least), std::max(smallest.top(), least),
                std::max(smallest.right(), least), std::max(smallest.bottom(), least)),
      QPageLayout::Point);
}

// One visible character for each of the line, so that every one fills its column.
QString Printable(const std::string& line) {
  constexpr QChar softHyphen(0xAD);
  QString text = QString::fromStdString(ToUtf8(line));
  for (QChar& character : text) {
    if (character == softHyphen) character = QLatin1Char('-');
    if (!character.isPrint()) character = QLatin1Char(' ');
  }
  return text;
}

// The longest head of `text` that fits, broken at a blank where there is one.
qsizetype FittingLength(QStringView text, qsizetype room) {
  if (text.size() <= room) return text.size();
  const qsizetype blank = text.lastIndexOf(QLatin1Char(' '), room);
  return blank > 0 && !text.first(blank).trimmed().isEmpty() ? blank : room;
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
  // Left alone, the toolkit takes A4 wherever the printer knows it, whatever paper is loaded.
  if (info.defaultPageSize().isValid()) printer->setPageSize(info.defaultPageSize());
  WidenMargins(*printer);
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
    const qsizetype length = FittingLength(rest, columns - indent);
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
