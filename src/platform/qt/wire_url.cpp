#include "platform/qt/wire_url.h"

#include <QByteArray>
#include <string_view>

#include "base/runtime_error.h"

namespace benevix {
namespace {

// The reserved and unreserved characters of RFC 3986, 2.2 and 2.3, without #.
bool IsAllowed(char c) {
  constexpr std::string_view forbidden = "\"#%<>\\^`{|}";
  return c > 0x20 && c < 0x7F && forbidden.find(c) == std::string_view::npos;
}

bool IsHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

}  // namespace

QUrl WireUrl(const std::string& address) {
  QByteArray wire;
  for (std::size_t i = 0; i < address.size(); ++i) {
    const char c = address[i];
    const bool isEscape = c == '%' && i + 2 < address.size() && IsHexDigit(address[i + 1]) &&
                          IsHexDigit(address[i + 2]);
    if (isEscape || IsAllowed(c)) {
      wire += c;
    } else {
      wire += '%' + QByteArray(1, c).toHex().toUpper();
    }
  }
  const QUrl url = QUrl::fromEncoded(wire);
  CheckWebUrl(url);
  return url;
}

void CheckWebUrl(const QUrl& url) {
  const QString scheme = url.scheme();
  const bool isWeb = scheme == QStringLiteral("http") || scheme == QStringLiteral("https");
  if (isWeb && url.isValid() && !url.host().isEmpty()) return;
  throw RuntimeError("\"" + url.toDisplayString().left(200).toStdString() + "\" is no web address");
}

}  // namespace benevix
