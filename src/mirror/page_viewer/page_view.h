#pragma once

#include <QUrl>
#include <QtPlugin>
#include <functional>
#include <memory>

class QWidget;

namespace benevix {

// What a page view reports, always from the event loop and never after its end.
struct PageViewEvents {
  std::function<void(const QUrl&)> shown;      // the address that is shown from now on
  std::function<void(const QUrl&)> refused;    // a redirect from https to this address of http
  std::function<void(bool)> canGoBackChanged;  // whether there is a page before it
  std::function<void()> stopped;               // the page has crashed; the view is of no more use
};

// One embedded page. All that it keeps (cookies, history) is gone with the view.
class PageView {
 public:
  virtual ~PageView() = default;
  [[nodiscard]] virtual QWidget* Widget() = 0;  // owned by the view
  virtual void GoBack() = 0;
};

// The root object of the plug-in.
class PageViewFactory {
 public:
  virtual ~PageViewFactory() = default;
  // Shows a page (http, https or file). The first one starts the engine.
  virtual std::unique_ptr<PageView> Show(const QUrl& address, QWidget* parent,
                                         PageViewEvents events) = 0;
};

}  // namespace benevix

Q_DECLARE_INTERFACE(benevix::PageViewFactory, "benevix.PageViewFactory/3")
