#include "mirror/page_viewer/page_address.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/qt/wire_url.h"

namespace benevix {
namespace {

bool IsWebAddress(const std::string& address) {
  const std::string lower = LowerCase(address.substr(0, 8));
  return lower.starts_with("http://") || lower.starts_with("https://");
}

}  // namespace

QUrl PageAddress(const std::string& address) {
  if (IsWebAddress(address)) return WireUrl(address);

  std::string path = address;
  std::string anchor;
  // A # can also be part of a folder's name.
  const std::size_t mark = address.rfind('#');
  if (mark != std::string::npos && mark > address.find_last_of("/\\")) {
    path = address.substr(0, mark);
    anchor = address.substr(mark + 1);
  }
  std::replace(path.begin(), path.end(), '\\', '/');
  const QString file = QString::fromStdString(path);
  const QFileInfo info(file);
  if (!QDir::isAbsolutePath(file)) {
    throw RuntimeError("\"" + ToUtf8(address).substr(0, 200) + "\" is no address of a page");
  }
  if (!info.isFile() || !info.isReadable())
    throw RuntimeError("The file " + path + " cannot be read");
  QUrl url = QUrl::fromLocalFile(file);
  if (!anchor.empty()) url.setFragment(QString::fromStdString(ToUtf8(anchor)), QUrl::DecodedMode);
  return url;
}

QString OriginText(const QUrl& address) {
  if (address.isLocalFile()) return address.fileName();
  // Letters of other scripts stay encoded: some look like the letters of a well-known host.
  QString origin = address.host(QUrl::FullyEncoded);
  if (address.port() >= 0) origin += ':' + QString::number(address.port());
  constexpr qsizetype longest = 60;
  return origin.size() <= longest ? origin : QStringLiteral("…") + origin.right(longest);
}

}  // namespace benevix
