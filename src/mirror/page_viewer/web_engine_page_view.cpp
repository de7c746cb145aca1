#include "mirror/page_viewer/web_engine_page_view.h"

#include <QAction>
#include <QGuiApplication>
#include <QPalette>
#include <QQuickWindow>
#include <QWebEngineView>
#include <QtWebEngineQuick>

#include "mirror/page_viewer/guarded_page.h"

namespace benevix {
namespace {

void BringUpEngine() {
  TextFileScheme::Register();
  QtWebEngineQuick::initialize();
  // Without the graphics card: with it, the window, which is shown already, would be created anew
  // around the view, and faults of drivers would be the program's.
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);

  // In the dark scheme, pages that have a dark look of their own show it. The engine takes this
  // only as a flag in the environment, which programs that are started later must not inherit.
  const char* const variable = "QTWEBENGINE_CHROMIUM_FLAGS";
  const QByteArray flags = qgetenv(variable);
  if (QGuiApplication::palette().window().color().lightness() < 128) {
    qputenv(variable, flags + " --force-dark-mode");
  }
  const QWebEngineProfile first;  // reads the flags
  if (flags.isNull()) {
    qunsetenv(variable);
  } else {
    qputenv(variable, flags);
  }
}

}  // namespace

WebEnginePageView::WebEnginePageView(const QUrl& address, QWidget* parent,
                                     const PageViewEvents& events)
    : textFile_(address), view_(new QWebEngineView(parent)) {
  profile_.installUrlSchemeHandler(TextFileScheme::kName, &textFile_);
  auto* page = new GuardedPage(&profile_, view_);
  view_->setPage(page);
  connect(page, &QWebEnginePage::urlChanged, this,
          [shown = events.shown](const QUrl& url) { shown(TextFileScheme::FileAddress(url)); });
  connect(page->action(QWebEnginePage::Back), &QAction::enabledChanged, this,
          events.canGoBackChanged);
  // Queued, because the receiver destroys the view.
  connect(page, &GuardedPage::redirectRefused, this, events.refused, Qt::QueuedConnection);
  connect(page, &QWebEnginePage::renderProcessTerminated, this, events.stopped,
          Qt::QueuedConnection);
  page->setUrl(TextFileScheme::EngineAddress(address));
}

WebEnginePageView::~WebEnginePageView() {
  delete view_;
}

QWidget* WebEnginePageView::Widget() {
  return view_;
}

void WebEnginePageView::GoBack() {
  if (view_ != nullptr) view_->back();
}

std::unique_ptr<PageView> WebEnginePageViewFactory::Show(const QUrl& address, QWidget* parent,
                                                         PageViewEvents events) {
  if (!engineIsUp_) BringUpEngine();
  engineIsUp_ = true;
  return std::make_unique<WebEnginePageView>(address, parent, std::move(events));
}

}  // namespace benevix
