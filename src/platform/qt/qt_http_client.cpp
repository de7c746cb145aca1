#include "platform/qt/qt_http_client.h"

#include <QEventLoop>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <exception>
#include <memory>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/qt/wire_url.h"

namespace benevix {
namespace {

constexpr int kMaxRedirects = 10;
constexpr int kMoment = 300;        // milliseconds
constexpr int kDefaultTimeout = 5;  // seconds
// Seconds; kTimeoutsInAll times as many milliseconds fit an int.
constexpr int kMaxTimeout = 300'000;
// Bytes to buffer and to read at a time. Qt may have more available; each chunk is reported.
constexpr qint64 kChunk = qint64{1} << 20;

struct Response {
  std::string body;
  int status = 0;
  QUrl redirect;  // empty for none
};

// Ends a request before its response is complete, and keeps why.
struct Stop {
  void Now(const std::string& why) {
    if (!reason.empty()) return;
    reason = why;
    if (reply) reply->abort();
  }

  QPointer<QNetworkReply> reply;  // under way
  std::string reason;             // empty while the request may go on
};

// As long as this object lives, `cancel` ends the request.
class CancelScope {
 public:
  CancelScope(std::function<void()>& cancel, Stop& stop) : cancel_(cancel) {
    cancel_ = [&stop] { stop.Now("cancelled"); };
  }
  ~CancelScope() {
    cancel_ = [] {};
  }
  CancelScope(const CancelScope&) = delete;
  CancelScope& operator=(const CancelScope&) = delete;

 private:
  std::function<void()>& cancel_;
};

// An empty request body that prevents retries. Qt sends a request up to three more times when the
// connection closes before the response; it cannot rewind a sequential device, and reports
// ContentReSendError instead.
class EmptyBody : public QIODevice {
 public:
  EmptyBody() { open(QIODevice::ReadOnly); }
  [[nodiscard]] bool isSequential() const override { return true; }
  bool reset() override { return false; }

 protected:
  qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }
};

std::string CodePage(const QString& text) {
  return FromUtf8(text.toStdString());
}

[[noreturn]] void Fail(const QUrl& url, const std::string& reason) {
  throw RuntimeError(CodePage(url.host()) + ": " + reason);
}

// The desktop's, as the toolkit finds it. Nobody reaches this machine through a proxy.
QNetworkProxy DesktopsProxy(const QUrl& url) {
  const QString host = url.host();
  if (host == "localhost" || QHostAddress(host).isLoopback()) return QNetworkProxy::NoProxy;
  return QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url))
      .value(0, QNetworkProxy::NoProxy);
}

QNetworkProxy Proxy(const std::string& proxy, const QUrl& url) {
  if (proxy.empty()) return DesktopsProxy(url);
  const QString text = QString::fromStdString(ToUtf8(proxy));
  const qsizetype colon = text.lastIndexOf(u':');
  bool isNumber = false;
  const quint16 port = text.mid(colon + 1).toUShort(&isNumber);
  if (colon < 1 || !isNumber || port == 0)
    throw RuntimeError("proxy \"" + proxy + "\": no host:port");
  return {QNetworkProxy::HttpProxy, text.left(colon), port};
}

int Timeout(int seconds) {
  return (seconds < 1 ? kDefaultTimeout : std::min(seconds, kMaxTimeout)) * 1000;
}

QNetworkRequest Request(const QUrl& url, int timeout) {
  QNetworkRequest request(url);
  request.setTransferTimeout(timeout);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
  request.setHeader(QNetworkRequest::ContentLengthHeader, 0);
  request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Benevix"));
  // No compression, so that HttpOptions::limit also bounds what a small transfer expands to.
  request.setRawHeader("Accept-Encoding", "identity");
  request.setRawHeader("Connection", "close");
  return request;
}

// Whether a response that ended when the connection closed is complete (RFC 9112, 6.3).
bool IsCompleteOnClose(const QNetworkReply& reply, std::size_t received) {
  const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
  return !reply.hasRawHeader("Transfer-Encoding") &&
         (!length.isValid() || length.toULongLong() == received);
}

// Qt reports an error for an error status, too, with codes from ProxyAuthenticationRequiredError
// on; lower codes and ProtocolFailure are failures of the connection, the proxy and the protocol.
bool IsComplete(const QNetworkReply& reply, std::size_t received) {
  if (!reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid()) return false;
  const auto error = reply.error();
  if (error == QNetworkReply::ContentReSendError) return IsCompleteOnClose(reply, received);
  return error == QNetworkReply::NoError ||
         (error >= QNetworkReply::ProxyAuthenticationRequiredError &&
          error != QNetworkReply::ProtocolFailure);
}

std::string Reason(const QNetworkReply& reply, int timeout) {
  switch (reply.error()) {
    case QNetworkReply::OperationCanceledError:
      return "nothing received for " + std::to_string(timeout / 1000) + " seconds";
    case QNetworkReply::ContentReSendError:
      return "connection closed";
    default:
      return CodePage(reply.errorString());
  }
}

Response Get(const QUrl& url, const QNetworkProxy& proxy, const HttpOptions& options, Stop& stop) {
  const int timeout = Timeout(options.timeout);
  QNetworkAccessManager manager;  // a new one, so that requests share no state
  manager.setProxy(proxy);
  EmptyBody body;
  const std::unique_ptr<QNetworkReply> reply(
      manager.sendCustomRequest(Request(url, timeout), "GET", &body));
  reply->setReadBufferSize(kChunk);
  stop.reply = reply.get();

  Response response;
  bool tooLong = false;
  std::exception_ptr raised;  // must not propagate through Qt's event loop
  // Returns false when there is nothing more to read now.
  const auto readChunk = [&] {
    const auto available = static_cast<std::size_t>(reply->bytesAvailable());
    if (tooLong || raised || available == 0) return false;
    tooLong = available > options.limit - response.body.size();
    try {
      if (!tooLong) {
        const QByteArray chunk = reply->read(kChunk);
        if (chunk.isEmpty()) return false;
        response.body.append(chunk.constData(), static_cast<std::size_t>(chunk.size()));
        const auto total = reply->header(QNetworkRequest::ContentLengthHeader).toULongLong();
        if (options.progress) options.progress(response.body.size(), total);
      }
    } catch (...) {
      raised = std::current_exception();
    }
    if (tooLong || raised) reply->abort();
    return !tooLong && !raised;
  };
  const auto readAvailable = [&] {
    while (readChunk()) continue;
  };
  QEventLoop loop;
  QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, readAvailable);
  QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
  if (!reply->isFinished()) loop.exec();
  if (!reply->isFinished()) Fail(url, "the program ends");
  readAvailable();

  if (raised) std::rethrow_exception(raised);
  if (!stop.reason.empty()) Fail(url, stop.reason);
  if (tooLong) return {};
  if (!IsComplete(*reply, response.body.size())) Fail(url, Reason(*reply, timeout));
  response.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  response.redirect = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
  return response;
}

}  // namespace

std::string QtHttpClient::OpenURL(const std::string& address, const HttpOptions& options) {
  QUrl url = WireUrl(address);
  const WaitScope wait(waits_);
  Stop stop;
  const CancelScope cancellable(cancel_, stop);
  QTimer moment;
  moment.setSingleShot(true);
  if (options.onSlow) QObject::connect(&moment, &QTimer::timeout, options.onSlow);
  moment.start(kMoment);
  QTimer patience;
  patience.setSingleShot(true);
  const int longest = Timeout(options.timeout) * kTimeoutsInAll;
  QObject::connect(&patience, &QTimer::timeout, [&stop, longest] {
    stop.Now("not complete after " + std::to_string(longest / 1000) + " seconds");
  });
  if (!options.isLong) patience.start(longest);
  for (int redirects = 0; redirects <= kMaxRedirects; ++redirects) {
    if (options.onAddress) options.onAddress(url.toEncoded().toStdString());
    Response response = Get(url, Proxy(options.proxy, url), options, stop);
    if (response.redirect.isEmpty()) {
      constexpr int ok = 200;
      if (options.needsOk && response.status != ok) return {};
      return std::move(response.body);
    }
    const QUrl next = url.resolved(response.redirect);
    CheckWebUrl(next);
    if (url.scheme() == QStringLiteral("https") && next.scheme() != url.scheme()) {
      Fail(url, "redirects from https to http");
    }
    url = next;
  }
  Fail(url, "too many redirects");
}

}  // namespace benevix
