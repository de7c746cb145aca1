#include "mirror/page_viewer/page_address.h"

#include <QDir>
#include <QFileInfo>

#include "base/runtime_error.h"
#include "base/text.h"
#include "base/web_address.h"
#include "platform/qt/wire_url.h"

namespace benevix {
QUrl PageAddress(const Page& page) {
  if (IsWebAddress(page.web)) return WireUrl(page.web);
  const QString file = QString::fromStdString(page.file.Utf8());
  if (!page.web.empty() || !QDir::isAbsolutePath(file)) {
    throw RuntimeError("\"" + page.Utf8().substr(0, 200) + "\" is no address of a page");
  }
  const QFileInfo info(file);
  if (!info.isFile() || !info.isReadable()) {
    throw RuntimeError("The file " + page.file.Utf8() + " cannot be read");
  }
  QUrl url = QUrl::fromLocalFile(file);
  if (!page.anchor.empty()) {
    url.setFragment(QString::fromStdString(ToUtf8(page.anchor)), QUrl::DecodedMode);
  }
  return url;
}

bool HasOrigin(const QUrl& address) {
  const bool isWeb = address.scheme() == "http" || address.scheme() == "https";
  return address.isLocalFile() || (isWeb && !address.host().isEmpty());
}

QString OriginText(const QUrl& address) {
  if (address.isLocalFile()) return address.fileName();
  // Letters of other scripts stay encoded: some look like the letters of a well-known host.
  QString host = address.host(QUrl::FullyEncoded);
  if (address.port() >= 0) host += ':' + QString::number(address.port());
  constexpr qsizetype longest = 40;
  if (host.size() > longest) host = QStringLiteral("…") + host.right(longest);
  return address.scheme() + "://" + host;
}

}  // namespace benevix
