#include "loopback/loopback_server.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>
#include <algorithm>
#include <chrono>

namespace benevix {
namespace {

using Request = LoopbackServer::Request;
using Answer = LoopbackServer::Answer;

constexpr std::string_view kHeadEnd = "\r\n\r\n";

bool IsSameName(std::string_view one, std::string_view other) {
  const auto text = [](std::string_view name) {
    return QLatin1String(name.data(), static_cast<qsizetype>(name.size()));
  };
  return text(one).compare(text(other), Qt::CaseInsensitive) == 0;
}

Request RequestOf(std::string_view head) {
  const std::string_view line = head.substr(0, head.find("\r\n"));
  const std::size_t blank = line.find(' '), end = line.rfind(" HTTP/1.");
  if (blank == 0 || end == std::string_view::npos || end <= blank + 1) return {};
  return {std::string(line.substr(0, blank)), std::string(line.substr(blank + 1, end - blank - 1)),
          std::string(head.substr(line.size() + 2))};
}

std::string HeadOf(const Answer& answer) {
  std::string head = "HTTP/1.1 " + std::to_string(answer.status) +
                     " \r\nContent-Type: " + answer.contentType +
                     "\r\nContent-Length: " + std::to_string(answer.body.size()) +
                     "\r\nCache-Control: no-store\r\nConnection: close\r\n";
  for (const auto& [name, value] : answer.headers) {
    head.append(name).append(": ").append(value).append("\r\n");
  }
  return head + "\r\n";
}

void Write(QTcpSocket& socket, const std::string& bytes) {
  socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void WriteSlowly(QTcpSocket& socket, const std::string& bytes, double pause) {
  auto* const timer = new QTimer(&socket);
  QObject::connect(timer, &QTimer::timeout, &socket, [&socket, bytes, at = qsizetype{0}]() mutable {
    const auto size = static_cast<qsizetype>(bytes.size());
    if (at < size) socket.write(bytes.data() + at++, 1);
    if (at == size) socket.disconnectFromHost();
  });
  const std::chrono::duration<double> seconds(pause);
  timer->start(std::chrono::duration_cast<std::chrono::milliseconds>(seconds));
}

}  // namespace

std::string Request::Header(std::string_view name) const {
  std::string_view rest = headers;
  while (!rest.empty()) {
    const std::string_view line = rest.substr(0, rest.find("\r\n"));
    const std::size_t colon = line.find(':');
    if (colon != std::string_view::npos && IsSameName(line.substr(0, colon), name)) {
      const std::size_t value = line.find_first_not_of(" \t", colon + 1);
      return std::string(line.substr(std::min(value, line.size())));
    }
    rest.remove_prefix(std::min(line.size() + 2, rest.size()));
  }
  return {};
}

LoopbackServer::LoopbackServer() {
  inThread_.moveToThread(&thread_);
  thread_.start();
}

void LoopbackServer::Do(const std::function<void()>& action) {
  QMetaObject::invokeMethod(&inThread_, action, Qt::BlockingQueuedConnection);
}

int LoopbackServer::Bind(int port) {
  Do([this, &port] {
    server_ = std::make_unique<QTcpServer>();
    const bool isBound = server_->listen(QHostAddress::LocalHost, static_cast<quint16>(port));
    if (isBound) server_->pauseAccepting();
    port = isBound ? server_->serverPort() : 0;
  });
  address_ = "http://127.0.0.1:" + std::to_string(port) + "/";
  return port;
}

void LoopbackServer::Start(Handler handler) {
  handler_ = std::move(handler);
  Do([this] {
    QObject::connect(server_.get(), &QTcpServer::newConnection, server_.get(), [this] {
      while (QTcpSocket* const socket = server_->nextPendingConnection()) Serve(*socket);
    });
    server_->resumeAccepting();
  });
}

void LoopbackServer::Stop() {
  if (!thread_.isRunning()) return;
  Do([this] { server_.reset(); });
  thread_.quit();
  thread_.wait();
}

void LoopbackServer::Serve(QTcpSocket& socket) {
  QObject::connect(&socket, &QTcpSocket::disconnected, &socket, &QObject::deleteLater);
  const auto read = [this, &socket, head = std::string(), isAnswered = false]() mutable {
    const QByteArray bytes = socket.readAll();
    if (isAnswered) return;
    // The end may have come in two pieces.
    const std::size_t before = head.size() - std::min(head.size(), kHeadEnd.size());
    head.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const std::size_t end = head.find(kHeadEnd, before);
    if (end == std::string::npos && head.size() <= kLongestHead) return;
    isAnswered = true;
    Respond(socket, end == std::string::npos ? Request() : RequestOf(head.substr(0, end + 2)));
  };
  QObject::connect(&socket, &QTcpSocket::readyRead, &socket, read);
}

void LoopbackServer::Respond(QTcpSocket& socket, const Request& request) {
  const Answer answer = handler_(request);
  if (answer.reply == Reply::Silence) return;
  if (answer.reply == Reply::Answer) Write(socket, HeadOf(answer));
  if (answer.reply != Reply::Close && request.method != "HEAD") {
    if (answer.pause > 0) return WriteSlowly(socket, answer.body, answer.pause);
    Write(socket, answer.body);
  }
  socket.disconnectFromHost();
}

}  // namespace benevix
