#include "mirror/page_viewer/page_view_host.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QPluginLoader>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include "base/runtime_error.h"
#include "base/web_address.h"
#include "mirror/page_viewer/administrator.h"
#include "mirror/page_viewer/page_address.h"

namespace benevix {
namespace {

// Null when the plug-in is missing or does not fit the program.
PageViewFactory* LoadFactory() {
  const QString program = QCoreApplication::applicationDirPath();
  for (const char* folder : {"plugins", BENEVIX_PLUGIN_FOLDER}) {
    QPluginLoader loader(program + '/' + folder + "/benevix_page_viewer");
    if (auto* factory = qobject_cast<PageViewFactory*>(loader.instance())) return factory;
  }
  return nullptr;
}

// For the administrator the engine cannot use its sandbox, and then ends the whole program unless
// this variable allows it to do without.
bool EngineMayRun() {
  return !RunsAsAdministrator() || qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX");
}

}  // namespace

PageViewHost::PageViewHost(QWidget* container, QLabel* hostLine)
    : container_(container), hostLine_(hostLine) {
  if (container->layout() == nullptr) new QVBoxLayout(container);
  container->layout()->setContentsMargins(0, 0, 0, 0);
}

PageViewHost::~PageViewHost() {
  Clear();
}

// Each page has a view of its own, so that it starts at its top or its anchor, and without anything
// of the page before.
void PageViewHost::Navigate(const Page& page) {
  Clear();
  if (page.Utf8().empty()) return;
  try {
    ShowPage(PageAddress(page));
  } catch (const RuntimeError& error) {
    ShowNotice(QString::fromStdString(error.what()));
  }
}

void PageViewHost::GoBack() {
  if (view_) view_->GoBack();
}

void PageViewHost::Clear() {
  view_.reset();
  delete notice_;
  address_.clear();
  if (hostLine_ != nullptr) hostLine_->clear();
}

void PageViewHost::ShowPage(const QUrl& address) {
  SetAddress(address);
  if (!EngineMayRun()) {
    ShowNotice(
        QStringLiteral("The page viewer does not run for the system's administrator, because a "
                       "page could do harm with these rights. Please start the program as another "
                       "user, or open the page in your browser."));
    return;
  }
  PageViewFactory* factory = LoadFactory();
  if (factory == nullptr) {
    ShowNotice(
        QStringLiteral("The page viewer is not installed or does not fit this version of the "
                       "program. You can open the page in your browser."));
    return;
  }
  PageViewEvents events;
  events.shown = [this](const QUrl& shown) { MovedTo(shown); };
  events.refused = [this](const QUrl& to) {
    Close(QStringLiteral("This page leads from https to %1, where others on the way could read and "
                         "change everything. It is not opened here.")
              .arg(OriginText(to)));
  };
  events.canGoBackChanged = [this](bool canGoBack) { onCanGoBackChanged(canGoBack); };
  events.stopped = [this] {
    Close(QStringLiteral("The page has stopped working. You can open it in your browser."));
  };
  view_ = factory->Show(address, container_, std::move(events));
  Put(view_->Widget());
}

// What has no address could look like any page, and nobody could tell whose it is.
void PageViewHost::MovedTo(const QUrl& address) {
  if (HasOrigin(address)) {
    SetAddress(address);
    onShown(address);
    return;
  }
  if (!view_) return;
  QWidget* const page = view_->Widget();
  page->hide();
  QTimer::singleShot(0, page, [this] {
    Close(QStringLiteral("The page has tried to hide where it comes from, and was closed."));
  });
}

void PageViewHost::SetAddress(const QUrl& address) {
  address_ = address;
  const bool isProtected = address.isLocalFile() || IsProtected(address.toEncoded().toStdString());
  hostLine_->setText(OriginText(address) +
                     (isProtected ? QString() : QStringLiteral(" - not secure")));
  hostLine_->setProperty("look", isProtected ? "note" : "warning");
  hostLine_->style()->polish(hostLine_);  // so that the style sees the other look
}

void PageViewHost::Close(const QString& reason) {
  view_.reset();
  ShowNotice(reason);
}

void PageViewHost::ShowNotice(const QString& text) {
  auto* notice = new QWidget(container_);
  notice->setObjectName("pageNotice");
  auto* label = new QLabel(text, notice);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignCenter);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);

  auto* column = new QVBoxLayout(notice);
  column->setSpacing(16);
  column->setContentsMargins(32, 0, 32, 0);
  column->addStretch();
  column->addWidget(label);
  // The window itself leads from a page of the web to the browser.
  if (address_.isLocalFile()) {
    auto* button = new QPushButton(QStringLiteral("&Open in the browser"), notice);
    QObject::connect(button, &QPushButton::clicked, label, [label, address = address_] {
      if (QDesktopServices::openUrl(address)) return;
      label->setText(QStringLiteral("No browser could be opened. The page's address is:\n\n") +
                     address.toString(QUrl::FullyEncoded));
    });
    column->addWidget(button, 0, Qt::AlignHCenter);
  }
  column->addStretch();
  notice_ = notice;
  Put(notice);
}

void PageViewHost::Put(QWidget* widget) {
  container_->layout()->addWidget(widget);
  container_->setFocusProxy(widget);
  widget->show();
  // So that the keys that scroll work at once, unless the user works elsewhere in the window.
  if (container_->window()->focusWidget() == nullptr) widget->setFocus();
}

}  // namespace benevix
