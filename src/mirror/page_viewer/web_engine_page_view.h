#pragma once

#include <QObject>
#include <QPointer>
#include <QWebEngineProfile>

#include "mirror/page_viewer/page_view.h"
#include "mirror/page_viewer/text_file_scheme.h"

class QWebEngineView;

namespace benevix {

class WebEnginePageView : public QObject, public PageView {
  Q_OBJECT

 public:
  WebEnginePageView(const QUrl& address, QWidget* parent, const PageViewEvents& events);
  ~WebEnginePageView() override;

  [[nodiscard]] QWidget* Widget() override;
  void GoBack() override;

 private:
  QWebEngineProfile profile_;  // off the record: nothing reaches the disk
  TextFileScheme textFile_;
  QPointer<QWebEngineView> view_;  // its parent may end it first
};

class WebEnginePageViewFactory : public QObject, public PageViewFactory {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "benevix.PageViewFactory/3")
  Q_INTERFACES(benevix::PageViewFactory)

 public:
  std::unique_ptr<PageView> Show(const QUrl& address, QWidget* parent,
                                 PageViewEvents events) override;

 private:
  bool engineIsUp_ = false;
};

}  // namespace benevix
