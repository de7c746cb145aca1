#pragma once

#include <QPointer>
#include <QUrl>
#include <memory>
#include <string>

#include "mirror/page_viewer/page_view.h"

class QLabel;
class QWidget;

namespace benevix {

// Shows pages in a widget of a window. The engine is loaded with the first page; where it is
// missing or may not run, a notice offers the user's browser.
class PageViewHost {
 public:
  // `hostLine` tells whose page is shown.
  PageViewHost(QWidget* container, QLabel* hostLine);
  ~PageViewHost();
  PageViewHost(const PageViewHost&) = delete;
  PageViewHost& operator=(const PageViewHost&) = delete;

  // Shows a page: see PageAddress. An address that cannot be shown ends in a notice, an empty one
  // just ends the page before it.
  void Navigate(const std::string& address);

  // Ends the page; nothing that it kept is left.
  void Clear();

 private:
  void ShowPage(const QUrl& address);
  void ShowNotice(const QString& text);
  void SetAddress(const QUrl& address);
  void Put(QWidget* widget);

  QPointer<QWidget> container_;
  QPointer<QLabel> hostLine_;
  std::unique_ptr<PageView> view_;
  QPointer<QWidget> notice_;
  QUrl address_;  // what is shown, as far as it has come
};

}  // namespace benevix
