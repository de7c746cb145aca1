#include "loopback/loopback_server.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <limits>
#include <optional>

namespace benevix {
namespace {

constexpr const char* loopback = "127.0.0.1";
constexpr time_t waitStepMicroseconds = 100'000;
constexpr int stepsToRequest = 50;

// Reads the bytes in hand first, then the connection. Once closed it writes nothing.
class PrefixedStream : public httplib::Stream {
 public:
  PrefixedStream(std::string prefix, httplib::Stream& rest)
      : prefix_(std::move(prefix)), rest_(rest) {}

  bool is_readable() const override { return position_ < prefix_.size() || rest_.is_readable(); }
  bool is_writable() const override { return rest_.is_writable(); }

  ssize_t read(char* bytes, size_t size) override {
    if (position_ == prefix_.size()) return rest_.read(bytes, size);
    const size_t count = std::min(size, prefix_.size() - position_);
    std::memcpy(bytes, prefix_.data() + position_, count);
    position_ += count;
    return static_cast<ssize_t>(count);
  }

  ssize_t write(const char* bytes, size_t size) override {
    return closed_ ? -1 : rest_.write(bytes, size);
  }

  void Close() { closed_ = true; }

  void get_remote_ip_and_port(std::string& ip, int& port) const override {
    rest_.get_remote_ip_and_port(ip, port);
  }

  void get_local_ip_and_port(std::string& ip, int& port) const override {
    rest_.get_local_ip_and_port(ip, port);
  }

  socket_t socket() const override { return rest_.socket(); }

 private:
  std::string prefix_;
  size_t position_ = 0;
  httplib::Stream& rest_;
  bool closed_ = false;
};

// The request line with its line end, or as much of it as arrived: longer lines are left to the
// library, which refuses them with status 414.
std::string ReadRequestLine(httplib::Stream& stream) {
  std::string line;
  char byte = 0;
  while (line.size() <= LoopbackServer::longestTarget && stream.read(&byte, 1) == 1) {
    line.push_back(byte);
    if (byte == '\n') break;
  }
  return line;
}

// Takes the target out of a request line and leaves "/" in its place; nothing when the line has no
// target or is not whole.
std::optional<std::string> TakeTarget(std::string& line) {
  if (line.empty() || line.back() != '\n') return std::nullopt;
  const size_t blank = line.find(' ');
  if (blank == std::string::npos) return std::nullopt;
  const size_t end = line.find_first_of(" \r\n", blank + 1);
  std::string target = line.substr(blank + 1, end - blank - 1);
  if (target.empty() || target.front() != '/') return std::nullopt;
  line.replace(blank + 1, target.size(), "/");
  return target;
}

}  // namespace

LoopbackServer::LoopbackServer() {
  // The library's default lets a second server bind to the same port unnoticed.
  set_socket_options([](socket_t socket) {
    const int on = 1;
#ifdef _WIN32
    setsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&on),
               sizeof(on));
#else
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on));
#endif
  });
}

int LoopbackServer::Bind(int port) {
  if (port == 0) {
    port = std::max(bind_to_any_port(loopback), 0);
  } else if (!bind_to_port(loopback, port)) {
    port = 0;
  }
  address_ = "http://" + std::string(loopback) + ":" + std::to_string(port) + "/";
  return port;
}

void LoopbackServer::Start() {
  serving_ = std::thread([this] { listen_after_bind(); });
  // A stop before the server runs would be lost.
  while (!is_running()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

void LoopbackServer::Stop() {
  if (!serving_.joinable()) return;
  stop();
  serving_.join();
}

// Browsers open connections in advance; the short steps let a stop end the wait for them.
bool LoopbackServer::WaitForBytes(socket_t socket, int steps) const {
  for (int step = 0; step < steps && svr_sock_ != INVALID_SOCKET; ++step) {
    const bool readable = httplib::detail::process_client_socket(
        socket, 0, waitStepMicroseconds, write_timeout_sec_, write_timeout_usec_,
        [](httplib::Stream& stream) { return stream.is_readable(); });
    if (readable) return true;
  }
  return false;
}

// The library checks the length of the request line before it asks `setup` for changes, so it is
// shown a short line, and the target is put back in `setup`.
bool LoopbackServer::process_and_close_socket(socket_t socket) {
  const auto serve = [this, socket](httplib::Stream& connection) {
    std::string line = ReadRequestLine(connection);
    const std::optional<std::string> target = TakeTarget(line);
    PrefixedStream stream(std::move(line), connection);
    bool closed = false;
    return process_request(stream, true, closed, [&](httplib::Request& request) {
      request.ranges.clear();
      if (!target) return;
      request.target = *target;
      request.path = target->substr(0, target->find('?'));
      const Reply wanted = reply(request);
      if (wanted == Reply::Answer) return;
      // A client sends nothing after its request: once there is something to read, it has left.
      if (wanted == Reply::Silence) WaitForBytes(socket, std::numeric_limits<int>::max());
      stream.Close();
    });
  };
  const bool served =
      WaitForBytes(socket, stepsToRequest) &&
      httplib::detail::process_client_socket(socket, read_timeout_sec_, read_timeout_usec_,
                                             write_timeout_sec_, write_timeout_usec_, serve);
  httplib::detail::close_socket(socket);
  return served;
}

}  // namespace benevix
