#include "platform/qt/qt_printer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
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
void SetMargins(QPagedPaintDevice& device) {
  QPageLayout layout = device.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const QMarginsF printable = layout.minimumMargins();
  const double margin = layout.fullRect().width() / 16;
  device.setPageMargins(
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

// Puts the lines of a document on the pages of a printer or a file.
class Pages {
 public:
  explicit Pages(QPagedPaintDevice& device) : device_(device) {
    SetMargins(device);
    if (!painter_.begin(&device)) throw RuntimeError("The printer cannot be used");
    painter_.setFont(LineFont());
    columnWidth_ = QFontMetricsF(painter_.font(), &device).horizontalAdvance(u'M');
  }

  void Put(const PrintLine& line) {
    const int columns = std::max(static_cast<int>(painter_.viewport().width() / columnWidth_), 1);
    const int indent = std::max(line.column - 1, 0) % columns;
    const QString text = Printable(line.text);
    QStringView rest = text;
    do {
      const qsizetype length = RowLength(rest, columns - indent);
      PutRow(indent, rest.first(length).toString());
      rest = rest.sliced(length);
      while (rest.startsWith(u' ')) rest = rest.sliced(1);
    } while (!rest.isEmpty());
  }

  void End() {
    if (!painter_.end()) throw RuntimeError("The printer did not take the document");
  }

 private:
  // `column` counts from 0.
  void PutRow(int column, const QString& text) {
    const QFontMetricsF metrics(painter_.font(), &device_);
    if (y_ + metrics.height() > painter_.viewport().height()) {
      if (!device_.newPage()) throw RuntimeError("The printer takes no further page");
      y_ = 0;
    }
    painter_.drawText(QPointF(column * columnWidth_, y_ + metrics.ascent()), text);
    y_ += metrics.lineSpacing();
  }

  QPagedPaintDevice& device_;
  QPainter painter_;
  // In device pixels. Not rounded: over a hundred columns the error would be a whole column.
  double columnWidth_ = 0;
  double y_ = 0;  // from the top margin
};

void PutAll(const PrintDocument& document, QPagedPaintDevice& device) {
  Pages pages(device);
  for (const PrintLine& line : document) pages.Put(line);
  pages.End();
}

// The paper that is usual where the user lives.
QPageSize UsualPaper() {
  const bool isMetric = QLocale::system().measurementSystem() == QLocale::MetricSystem;
  return QPageSize(isMetric ? QPageSize::A4 : QPageSize::Letter);
}

}  // namespace

bool QtPrinter::IsThere() const {
  return !QPrinterInfo::defaultPrinter().isNull();
}

void QtPrinter::Print(const PrintDocument& document) {
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  if (info.isNull()) throw RuntimeError(kNoPrinter);
  QPrinter printer(info, QPrinter::HighResolution);
  printer.setDocName(QCoreApplication::applicationName());
  // Qt's default is A4 on any printer that supports it, whatever paper is loaded.
  if (info.defaultPageSize().isValid()) printer.setPageSize(info.defaultPageSize());
  PutAll(document, printer);
}

std::string QtPrinter::Pdf(const PrintDocument& document) const {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&bytes);
  pdf.setCreator(QCoreApplication::applicationName());
  pdf.setPageSize(UsualPaper());
  PutAll(document, pdf);
  return bytes.data().toStdString();
}

}  // namespace benevix
