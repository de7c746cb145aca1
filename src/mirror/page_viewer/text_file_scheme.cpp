#include "mirror/page_viewer/text_file_scheme.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace benevix {
namespace {

// Where the text's first `lines` lines from `begin` on end.
qsizetype EndOfLines(const QByteArray& text, qsizetype begin, int lines) {
  qsizetype end = begin;
  for (; lines > 0 && end < text.size(); --lines) {
    const qsizetype lineEnd = text.indexOf('\n', end);
    end = lineEnd < 0 ? text.size() : lineEnd + 1;
  }
  return end;
}

// The text as a page. Laid out as a whole a long one would keep the engine busy for many seconds,
// so it stands in blocks, of which the engine lays out those that are seen.
QByteArray PageOf(const QByteArray& text) {
  constexpr int lines = 200;
  // The height of an unseen block: of its lines, if none of them wraps.
  QByteArray page =
      "<!DOCTYPE html><meta name=color-scheme content='light dark'><style>"
      "body{font:13px/15px monospace;white-space:pre-wrap;overflow-wrap:anywhere}"
      "div{content-visibility:auto;contain-intrinsic-size:auto 3000px}</style>";
  for (qsizetype begin = 0, end = 0; begin < text.size(); begin = end) {
    end = EndOfLines(text, begin, lines);
    QByteArray block = text.mid(begin, end - begin);
    page += "<div>" + block.replace('&', "&amp;").replace('<', "&lt;") + "</div>";
  }
  return page;
}

}  // namespace

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
  auto* page = new QBuffer(job);
  page->setData(PageOf(file->readAll()));
  page->open(QIODevice::ReadOnly);
  job->reply("text/html;charset=windows-1252", page);
}

}  // namespace benevix
