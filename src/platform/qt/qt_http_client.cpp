#include "platform/qt/qt_http_client.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>
#include <algorithm>
#include <exception>
#include <memory>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/qt/wire_url.h"

namespace benevix {
namespace {

constexpr int kMostRedirects = 10;
constexpr int kDefaultTimeout = 5;          // seconds
constexpr int kLongestTimeout = 1'000'000;  // seconds; in milliseconds still an int
// Much may come at once, however small the buffer asked for; the progress is told piece by piece.
constexpr qint64 kPiece = qint64{1} << 20;

struct Answer {
  std::string bytes;
  int status = 0;
  QUrl redirect;  // empty for none
};

// The body of a request without one. The toolkit sends a request again, up to three times, when the
// connection closes before the answer; it cannot do so with a body that cannot be read twice, and
// then reports ContentReSendError.
class EmptyBody : public QIODevice {
 public:
  EmptyBody() { open(QIODevice::ReadOnly); }
  [[nodiscard]] bool isSequential() const override { return true; }
  bool reset() override { return false; }

 protected:
  qint64 readData(char* /*data*/, qint64 /*most*/) override { return -1; }
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }
};

std::string CodePage(const QString& text) {
  return FromUtf8(text.toStdString());
}

[[noreturn]] void Fail(const QUrl& url, const std::string& reason) {
  throw RuntimeError(CodePage(url.host()) + ": " + reason);
}

QNetworkProxy Proxy(const std::string& proxy) {
  if (proxy.empty()) return QNetworkProxy::NoProxy;
  const QString text = QString::fromStdString(ToUtf8(proxy));
  const qsizetype colon = text.lastIndexOf(u':');
  bool isNumber = false;
  const quint16 port = text.mid(colon + 1).toUShort(&isNumber);
  if (colon < 1 || !isNumber || port == 0)
    throw RuntimeError("proxy \"" + proxy + "\": no host:port");
  return {QNetworkProxy::HttpProxy, text.left(colon), port};
}

int Timeout(int seconds) {
  return (seconds < 1 ? kDefaultTimeout : std::min(seconds, kLongestTimeout)) * 1000;
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
  // No compression: the limit then bounds what is kept, however small it comes.
  request.setRawHeader("Accept-Encoding", "identity");
  request.setRawHeader("Connection", "close");
  return request;
}

// Whether an answer is whole that ended with its connection.
bool MayEndSo(const QNetworkReply& reply, std::size_t received) {
  const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
  return !reply.hasRawHeader("Transfer-Encoding") &&
         (!length.isValid() || length.toULongLong() == received);
}

// An answer with an error's status comes with an error too; what is left are the failures of the
// connection, the proxy and the protocol.
bool HasAnswered(const QNetworkReply& reply, std::size_t received) {
  if (!reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid()) return false;
  const auto error = reply.error();
  if (error == QNetworkReply::ContentReSendError) return MayEndSo(reply, received);
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

Answer Get(const QUrl& url, const QNetworkProxy& proxy, const HttpOptions& options) {
  const int timeout = Timeout(options.timeout);
  QNetworkAccessManager manager;  // a new one: nothing of the last request is left
  manager.setProxy(proxy);
  EmptyBody body;
  const std::unique_ptr<QNetworkReply> reply(
      manager.sendCustomRequest(Request(url, timeout), "GET", &body));
  reply->setReadBufferSize(kPiece);

  Answer answer;
  bool tooLong = false;
  std::exception_ptr raised;  // must not pass through the toolkit's loop
  // Whether some more of the answer was taken.
  const auto takePiece = [&] {
    const auto available = static_cast<std::size_t>(reply->bytesAvailable());
    if (tooLong || raised || available == 0) return false;
    tooLong = available > options.limit - answer.bytes.size();
    try {
      if (!tooLong) {
        const QByteArray piece = reply->read(kPiece);
        if (piece.isEmpty()) return false;
        answer.bytes.append(piece.constData(), static_cast<std::size_t>(piece.size()));
        const auto total = reply->header(QNetworkRequest::ContentLengthHeader).toULongLong();
        if (options.progress) options.progress(answer.bytes.size(), total);
      }
    } catch (...) {
      raised = std::current_exception();
    }
    if (tooLong || raised) reply->abort();
    return !tooLong && !raised;
  };
  const auto take = [&] {
    while (takePiece()) continue;
  };
  QEventLoop loop;
  QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
  QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
  if (!reply->isFinished()) loop.exec();
  if (!reply->isFinished()) Fail(url, "the program ends");
  take();

  if (raised) std::rethrow_exception(raised);
  if (tooLong) return {};
  if (!HasAnswered(*reply, answer.bytes.size())) Fail(url, Reason(*reply, timeout));
  answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  answer.redirect = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
  return answer;
}

}  // namespace

std::string QtHttpClient::OpenURL(const std::string& address, const HttpOptions& options) {
  QUrl url = WireUrl(address);
  const QNetworkProxy proxy = Proxy(options.proxy);
  const WaitScope wait(waits_);
  for (int redirects = 0; redirects <= kMostRedirects; ++redirects) {
    Answer answer = Get(url, proxy, options);
    if (answer.redirect.isEmpty()) {
      constexpr int ok = 200;
      if (options.needsOk && answer.status != ok) return {};
      return std::move(answer.bytes);
    }
    url = url.resolved(answer.redirect);
    CheckWebUrl(url);
  }
  Fail(url, "too many redirects");
}

}  // namespace benevix
