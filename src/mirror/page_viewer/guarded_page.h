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
  [[nodiscard]] bool MayShowFile(const QUrl& file, NavigationType type) const;
};

}  // namespace benevix
