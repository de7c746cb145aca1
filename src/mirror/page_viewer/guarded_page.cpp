#include "mirror/page_viewer/guarded_page.h"

#include <QAction>
#include <QDesktopServices>
#include <QWebEngineCertificateError>
#include <QWebEngineDownloadRequest>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include <QWebEnginePermission>
#else
#include <QWebEngineQuotaRequest>
#endif

#include "mirror/page_viewer/text_file_scheme.h"

namespace benevix {
namespace {

void Confine(QWebEngineSettings& settings) {
  using Settings = QWebEngineSettings;
  constexpr Settings::WebAttribute off[] = {
      Settings::LocalContentCanAccessRemoteUrls,
      Settings::LocalContentCanAccessFileUrls,
      Settings::PluginsEnabled,
      Settings::PdfViewerEnabled,
      Settings::JavascriptCanAccessClipboard,
      Settings::JavascriptCanPaste,
      Settings::FullScreenSupportEnabled,
      Settings::ScreenCaptureEnabled,
      Settings::AllowRunningInsecureContent,
      Settings::AllowGeolocationOnInsecureOrigins,
      Settings::AllowWindowActivationFromJavaScript,
      Settings::HyperlinkAuditingEnabled,
      Settings::DnsPrefetchEnabled,
      Settings::NavigateOnDropEnabled,
      Settings::WebGLEnabled,
      Settings::AutoLoadIconsForPage,
  };
  for (const auto attribute : off) settings.setAttribute(attribute, false);
  settings.setAttribute(Settings::WebRTCPublicInterfacesOnly, true);
  // So that a click on such a link comes to acceptNavigationRequest, which hands on mail links
  // alone.
  settings.setUnknownUrlSchemePolicy(Settings::AllowUnknownUrlSchemesFromUserInteraction);
  settings.setDefaultTextEncoding("windows-1252");
}

// Place, camera, notices and the like.
void RefusePermissions(QWebEnginePage& page) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QObject::connect(&page, &QWebEnginePage::permissionRequested, &page,
                   [](QWebEnginePermission permission) { permission.deny(); });
#else
  QObject::connect(&page, &QWebEnginePage::featurePermissionRequested, &page,
                   [&page](const QUrl& origin, QWebEnginePage::Feature feature) {
                     page.setFeaturePermission(origin, feature,
                                               QWebEnginePage::PermissionDeniedByUser);
                   });
  QObject::connect(&page, &QWebEnginePage::quotaRequested, &page,
                   [](QWebEngineQuotaRequest request) { request.reject(); });
#endif
}

bool IsWeb(const QUrl& url) {
  return url.scheme() == "http" || url.scheme() == "https";
}

}  // namespace

GuardedPage::GuardedPage(QWebEngineProfile* profile, QObject* parent)
    : QWebEnginePage(profile, parent) {
  Confine(*settings());
  connect(profile, &QWebEngineProfile::downloadRequested, this,
          [](QWebEngineDownloadRequest* download) { download->cancel(); });
  // A link to a new window opens in this one, if the user has clicked on it.
  connect(this, &QWebEnginePage::newWindowRequested, this, [this](auto& request) {
    const QUrl to = request.requestedUrl();
    if (!request.isUserInitiated()) return;
    if (acceptNavigationRequest(to, NavigationTypeLinkClicked, true)) setUrl(to);
  });
  RefusePermissions(*this);
  connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
          [](auto request) { request.reject(); });
  connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
          [](auto request) { request.reject(); });
  connect(this, &QWebEnginePage::certificateError, this,
          [](QWebEngineCertificateError error) { error.rejectCertificate(); });
  // The page's menu does not offer what would be refused.
  for (const WebAction refused :
       {OpenLinkInNewWindow, OpenLinkInNewTab, OpenLinkInNewBackgroundTab, DownloadLinkToDisk,
        DownloadImageToDisk, DownloadMediaToDisk, SavePage, ViewSource}) {
    action(refused)->setVisible(false);
  }
}

bool GuardedPage::acceptNavigationRequest(const QUrl& to, NavigationType type, bool isMainFrame) {
  if (IsWeb(to)) return !isMainFrame || AcceptWeb(to, type);
  const QString scheme = to.scheme();
  if (scheme == "mailto" && type == NavigationTypeLinkClicked) QDesktopServices::openUrl(to);
  if (!isMainFrame) return scheme == "about" || scheme == "data" || scheme == "blob";
  const QUrl file = TextFileScheme::FileAddress(to);
  return file.isLocalFile() && AcceptFile(file, type);
}

bool GuardedPage::AcceptWeb(const QUrl& to, NavigationType type) {
  const bool isDowngrade =
      type == NavigationTypeRedirect && asked_.scheme() == "https" && to.scheme() != "https";
  if (isDowngrade) {
    Q_EMIT redirectRefused(to);
  } else {
    asked_ = to;
  }
  return !isDowngrade;
}

// The program's own requests count as typed; a local page may link to files in its own folder. The
// engine lets a page reach no other file, so that such a link becomes a request of the program.
bool GuardedPage::AcceptFile(const QUrl& file, NavigationType type) {
  if (type == NavigationTypeTyped || type == NavigationTypeReload ||
      type == NavigationTypeBackForward) {
    return true;
  }
  const QUrl from = TextFileScheme::FileAddress(url());
  if (file.matches(from, QUrl::RemoveFragment)) return true;
  constexpr auto folder = QUrl::RemoveFilename | QUrl::RemoveFragment | QUrl::RemoveQuery;
  const bool isNeighbor = from.isLocalFile() && file.adjusted(folder) == from.adjusted(folder);
  if (isNeighbor && type == NavigationTypeLinkClicked) {
    QMetaObject::invokeMethod(
        this, [this, file] { setUrl(file); }, Qt::QueuedConnection);
  }
  return false;
}

}  // namespace benevix
