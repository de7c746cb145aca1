#pragma once

#include <QWebEnginePage>

namespace benevix {

// A page that may run scripts, but reaches nothing beyond itself: no files, no other windows, no
// downloads, no devices, no site with an untrusted certificate.
class GuardedPage : public QWebEnginePage {
 public:
  // `profile` serves this page alone.
  GuardedPage(QWebEngineProfile* profile, QObject* parent);

 protected:
  bool acceptNavigationRequest(const QUrl& to, NavigationType type, bool isMainFrame) override;

 private:
  // Whether the navigation may go on; a link to a neighbour is followed instead.
  bool AcceptFile(const QUrl& file, NavigationType type);
};

}  // namespace benevix
