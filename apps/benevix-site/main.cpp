// The demonstration site: serves sample server files, a mail script and a payment page to programs
// on this machine.

#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <ctime>
#include <exception>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <mutex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "loopback/loopback_server.h"
#include "site.h"

namespace benevix {
namespace {

constexpr int exitFailure = 1;
constexpr int exitUsage = 2;
constexpr int highestPort = 65535;
constexpr std::string_view usage = "usage: benevix-site [--port N] --folder DIR\n";

volatile std::sig_atomic_t stopRequested = 0;

void RequestStop(int) {
  stopRequested = 1;
}

struct Options {
  int port = 0;
  std::filesystem::path folder;
};

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

int ReadPort(std::string_view text) {
  int port = 0;
  const char* end = text.data() + text.size();
  const auto [stop, failure] = std::from_chars(text.data(), end, port);
  if (failure != std::errc() || stop != end || port < 0 || port > highestPort) {
    throw UsageError("--port needs a number from 0 to 65535, not \"" + std::string(text) + "\"");
  }
  return port;
}

Options ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (size_t i = 0; i < arguments.size(); i += 2) {
    const std::string& name = arguments[i];
    if (name != "--port" && name != "--folder") {
      throw UsageError("unknown argument \"" + name + "\"");
    }
    if (i + 1 == arguments.size()) throw UsageError(name + " needs a value");
    if (name == "--port") options.port = ReadPort(arguments[i + 1]);
    if (name == "--folder") options.folder = arguments[i + 1];
  }
  if (options.folder.empty()) throw UsageError("--folder is missing");
  if (!std::filesystem::is_directory(options.folder)) {
    throw UsageError("\"" + options.folder.string() + "\" is not a folder");
  }
  return options;
}

// A request must not be able to write log lines of its own.
std::string OneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(),
      [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, '?');
  return text;
}

void LogRequest(const httplib::Request& request, const httplib::Response& response) {
  static std::mutex oneAtATime;
  const std::lock_guard lock(oneAtATime);
  const std::time_t now = std::time(nullptr);
  // "-" stands for what a broken request did not say.
  const std::string method = request.method.empty() ? "-" : request.method;
  const std::string target = request.target.empty() ? "-" : OneLine(request.target);
  const size_t bytes = request.method == "HEAD" ? 0 : response.body.size();
  std::cout << std::put_time(std::localtime(&now), "%Y-%m-%d %H:%M:%S") << ' ' << method << ' '
            << target << ' ' << response.status << ' ' << bytes << std::endl;
}

void Send(const SiteAnswer& answer, httplib::Response& response) {
  response.status = answer.status;
  response.set_content(answer.body, answer.contentType);
}

void Connect(LoopbackServer& server, Site& site) {
  using HandlerResponse = httplib::Server::HandlerResponse;
  server.set_default_headers({{"Cache-Control", "no-store"}});
  server.set_logger(LogRequest);
  // Before the routing: its regular expressions recurse once per character and run out of stack on
  // long targets.
  server.set_pre_routing_handler(
      [&site](const httplib::Request& request, httplib::Response& response) {
        const bool reads = request.method == "GET" || request.method == "HEAD";
        Send(reads ? site.Answer(request.target) : ErrorAnswer(405), response);
        if (!reads) response.set_header("Allow", "GET, HEAD");
        return HandlerResponse::Handled;
      });
  server.set_error_handler(
      httplib::Server::Handler([](const httplib::Request&, httplib::Response& response) {
        if (response.body.empty()) Send(ErrorAnswer(response.status), response);
      }));
}

void ServeUntilStopped(LoopbackServer& server) {
  using namespace std::chrono_literals;
  server.Start();
  while (stopRequested == 0 && server.is_running()) std::this_thread::sleep_for(50ms);
  server.Stop();
}

int Run(const Options& options) {
  LoopbackServer server;
  if (server.Bind(options.port) == 0) {
    std::cerr << "benevix-site: port " << options.port << " cannot be used\n";
    return exitFailure;
  }
  Site site(options.folder, server.Address());
  Connect(server, site);
  std::signal(SIGINT, RequestStop);
  std::signal(SIGTERM, RequestStop);
  std::cout << server.Address() << std::endl;
  ServeUntilStopped(server);
  return 0;
}

}  // namespace
}  // namespace benevix

int main(int argc, char* argv[]) {
  try {
    return benevix::Run(benevix::ReadOptions({argv + 1, argv + argc}));
  } catch (const benevix::UsageError& error) {
    std::cerr << "benevix-site: " << error.what() << '\n' << benevix::usage;
    return benevix::exitUsage;
  } catch (const std::exception& error) {
    std::cerr << "benevix-site: " << error.what() << '\n';
    return benevix::exitFailure;
  }
}
