#include "platform/qt/qt_printer.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "base/runtime_error.h"
#include "base/text.h"

namespace benevix {
namespace {

// The longest head of `text` that fits, broken at a blank where there is one.
qsizetype FittingLength(const QString& text, qsizetype room) {
  if (text.size() <= room) return text.size();
  const qsizetype blank = text.lastIndexOf(QLatin1Char(' '), room);
  return blank > 0 && !text.first(blank).trimmed().isEmpty() ? blank : room;
}

}  // namespace

QtPrinter::QtPrinter() = default;

QtPrinter::~QtPrinter() = default;

void QtPrinter::BeginDoc() {
  if (painter_) return;
  if (QPrinterInfo::defaultPrinter().isNull()) throw RuntimeError("There is no printer");
  font_ = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font_.setPointSize(9);
  printer_ = std::make_unique<QPrinter>(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
  painter_ = std::make_unique<QPainter>();
  if (!painter_->begin(printer_.get())) {
    painter_.reset();
    printer_.reset();
    throw RuntimeError("The printer cannot be used");
  }
  painter_->setFont(font_);
  y_ = 0;
}

void QtPrinter::PrintLine(int column, const std::string& line) {
  BeginDoc();
  const QFontMetrics metrics = painter_->fontMetrics();
  const int columns = painter_->viewport().width() / metrics.horizontalAdvance(QLatin1Char('M'));
  const qsizetype room = std::max(columns - (column - 1), 1);
  QString text = QString::fromStdString(ToUtf8(line));
  do {
    const qsizetype length = FittingLength(text, room);
    PrintRow(column, text.first(length));
    text.remove(0, length);
    if (!text.isEmpty() && text[0] == QLatin1Char(' ')) text.remove(0, 1);
  } while (!text.isEmpty());
}

void QtPrinter::PrintRow(int column, const QString& text) {
  const QFontMetrics metrics = painter_->fontMetrics();
  if (y_ + metrics.lineSpacing() > painter_->viewport().height()) {
    printer_->newPage();
    y_ = 0;
  }
  const int x = (column - 1) * metrics.horizontalAdvance(QLatin1Char('M'));
  painter_->drawText(x, y_ + metrics.ascent(), text);
  y_ += metrics.lineSpacing();
}

void QtPrinter::EndDoc() {
  if (!painter_) return;
  painter_->end();
  painter_.reset();
  printer_.reset();
}

}  // namespace benevix
