#pragma once

#include <QTcpServer>
#include <QThread>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class QTcpSocket;

namespace benevix {

// An HTTP server that only this machine can reach, on a thread of its own. Needs a
// QCoreApplication. Each connection carries one request, so that stopping waits for no browser; a
// request may be answered slowly, wrongly or not at all.
class LoopbackServer {
 public:
  // Bytes of a request's head; a longer one counts as unreadable.
  static constexpr std::size_t kLongestHead = std::size_t{4} << 20;

  struct Request {
    std::string method, target;  // exactly as they arrived; both empty for an unreadable head
    std::string headers;         // the lines below the request line

    // The value of a header; empty when there is none.
    [[nodiscard]] std::string Header(std::string_view name) const;
  };

  enum class Reply {
    Answer,   // a response of the values below
    Bytes,    // the body alone, which need be no response; then the connection closes
    Close,    // nothing
    Silence,  // nothing, until the client leaves or the server stops
  };

  struct Answer {
    Reply reply = Reply::Answer;
    int status = 200;
    std::string contentType = "text/plain";
    std::string body = {};
    std::vector<std::pair<std::string, std::string>> headers = {};  // besides those of the body
    double pause = 0;  // seconds before each byte of the body; 0 sends it at once
  };

  // Called on the server's thread, for one request after the other.
  using Handler = std::function<Answer(const Request&)>;

  LoopbackServer();
  LoopbackServer(const LoopbackServer&) = delete;
  LoopbackServer& operator=(const LoopbackServer&) = delete;
  ~LoopbackServer() { Stop(); }

  // Binds to 127.0.0.1. Takes a port, or 0 for a free one; gives the port bound, 0 when it is
  // taken. Whoever connects from now on is answered once the server starts.
  int Bind(int port);

  void Start(Handler handler);

  // Closes every connection; the server cannot start again.
  void Stop();

  // The address of the bound server, "http://127.0.0.1:PORT/".
  [[nodiscard]] const std::string& Address() const { return address_; }

 private:
  // Waits until it is done on the server's thread.
  void Do(const std::function<void()>& action);
  void Serve(QTcpSocket& socket);
  void Respond(QTcpSocket& socket, const Request& request);

  std::string address_;
  Handler handler_;
  QThread thread_;
  QObject inThread_;
  std::unique_ptr<QTcpServer> server_;  // made and deleted on its thread
};

}  // namespace benevix
