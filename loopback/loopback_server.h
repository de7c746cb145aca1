#pragma once

#include <functional>
#include <httplib.h>
#include <string>
#include <thread>

namespace benevix {

// An HTTP server that only this machine can reach. It differs from the library's server in four
// ways: a request target may be as long as `longestTarget` (the library itself stops at 8192
// characters), `Request::target` is the target exactly as it arrived, each connection carries one
// request, so that stopping never waits for an idle browser, and a request may stay unanswered.
class LoopbackServer : public httplib::Server {
 public:
  static constexpr std::size_t longestTarget = std::size_t{4} << 20;

  // Silence lasts until the client leaves or the server stops.
  enum class Reply { Answer, Close, Silence };

  LoopbackServer();
  ~LoopbackServer() override { Stop(); }

  // What becomes of a request, asked once its head is there.
  std::function<Reply(const httplib::Request&)> reply = [](const httplib::Request&) {
    return Reply::Answer;
  };

  // Binds to 127.0.0.1. Takes a port, or 0 for a free one; gives the port bound, 0 when it is
  // taken.
  int Bind(int port);

  // Serves the bound port on a thread of its own, until it is stopped.
  void Start();
  void Stop();

  // The address of the bound server, "http://127.0.0.1:PORT/".
  const std::string& Address() const { return address_; }

 private:
  bool process_and_close_socket(socket_t socket) override;
  // Waits until there is something to read, be it the end; gives false when there is nothing after
  // `steps` or the server stops.
  bool WaitForBytes(socket_t socket, int steps) const;

  std::string address_;
  std::thread serving_;
};

}  // namespace benevix
