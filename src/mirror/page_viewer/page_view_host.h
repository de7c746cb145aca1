#pragma once

#include <QPointer>
#include <QUrl>
#include <functional>
#include <memory>

#include "base/page.h"
#include "mirror/page_viewer/page_view.h"

class QLabel;
class QWidget;

namespace benevix {

// Shows pages in a widget of a window. The engine is loaded with the first page; where it is
// missing or may not run, a notice says so.
class PageViewHost {
 public:
  // `hostLine` shows where the page comes from, and whether others on the way can change it.
  PageViewHost(QWidget* container, QLabel* hostLine);
  ~PageViewHost();
  PageViewHost(const PageViewHost&) = delete;
  PageViewHost& operator=(const PageViewHost&) = delete;

  // Called when the user has moved on and when GoBack leads nowhere any more.
  std::function<void(bool canGoBack)> onCanGoBackChanged = [](bool) {};
  // Called with each address that is shown, the first one too.
  std::function<void(const QUrl& address)> onShown = [](const QUrl&) {};

  // Shows a page in place of the one before. One that cannot be shown gives a notice, an empty one
  // an empty view.
  void Navigate(const Page& page);

  // To the page from which the user came here by a link.
  void GoBack();

  // Closes the page and forgets all that it kept.
  void Clear();

 private:
  void ShowPage(const QUrl& address);
  void ShowNotice(const QString& text);
  void MovedTo(const QUrl& address);
  void SetAddress(const QUrl& address);
  // A notice in the page's place.
  void Close(const QString& reason);
  void Put(QWidget* widget);

  QPointer<QWidget> container_;
  QPointer<QLabel> hostLine_;
  std::unique_ptr<PageView> view_;
  QPointer<QWidget> notice_;
  QUrl address_;  // of the page that is shown or being loaded
};

}  // namespace benevix
