#include "mirror/look/texts.h"

#include "base/text.h"

namespace benevix {

QString ToQString(const std::string& text) {
  return QString::fromStdString(ToUtf8(text));
}

QString Drawn(const std::string& text) {
  constexpr std::size_t most = 100'000;  // bytes
  return text.size() <= most ? ToQString(text) : ToQString(text.substr(0, most)) + QChar(0x2026);
}

QString TitleOf(const std::string& caption) {
  constexpr const char* name = "Benevix";
  const QString title = Drawn(caption).trimmed();
  if (title.contains(QLatin1String(name), Qt::CaseInsensitive)) return title;
  return title + QLatin1String(" - ") + QLatin1String(name);
}

std::string FromQString(const QString& text) {
  return FromUtf8(text.toStdString());
}

}  // namespace benevix
