#include "mirror/page_viewer/text_file_scheme.h"

#include <QFile>
#include <QFileInfo>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace benevix {

void TextFileScheme::Register() {
  QWebEngineUrlScheme scheme(kName);
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Path);
  scheme.setFlags(QWebEngineUrlScheme::LocalScheme | QWebEngineUrlScheme::NoAccessAllowed);
  QWebEngineUrlScheme::registerScheme(scheme);
}

QUrl TextFileScheme::EngineAddress(const QUrl& address) {
  const QString name = address.fileName().toLower();
  QUrl page = address;
  if (address.isLocalFile() && !name.endsWith(".html") && !name.endsWith(".htm")) {
    page.setScheme(kName);
    page.setFragment({});
  }
  return page;
}

QUrl TextFileScheme::FileAddress(const QUrl& address) {
  QUrl file = address;
  if (address.scheme() == kName) file.setScheme("file");
  return file;
}

void TextFileScheme::requestStarted(QWebEngineUrlRequestJob* job) {
  auto* file = new QFile(FileAddress(page_).toLocalFile(), job);
  // Only a regular file: opening a pipe would wait for its writer.
  if (job->requestUrl() != page_ || !QFileInfo(*file).isFile() ||
      !file->open(QIODevice::ReadOnly)) {
    job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    return;
  }
  job->reply("text/plain;charset=windows-1252", file);
}

}  // namespace benevix
