#pragma once

#include <QWebEnginePage>

namespace benevix {

// A page that may run scripts, but reaches nothing beyond itself: no files, no other windows, no
// downloads, no devices, no site with an untrusted certificate.
class GuardedPage : public QWebEnginePage {
  Q_OBJECT

 public:
  // `profile` serves this page alone.
  GuardedPage(QWebEngineProfile* profile, QObject* parent);

  // A page of https has led to this address of http, by itself.
  Q_SIGNAL void redirectRefused(const QUrl& to);

 protected:
  bool acceptNavigationRequest(const QUrl& to, NavigationType type, bool isMainFrame) override;

 private:
  // Whether the navigation may go on: no redirect from https to http does.
  bool AcceptWeb(const QUrl& to, NavigationType type);
  // Whether the navigation may go on; a link to a neighbour is followed instead.
  bool AcceptFile(const QUrl& file, NavigationType type);

  QUrl asked_;  // where the last navigation that may go on leads
};

}  // namespace benevix
