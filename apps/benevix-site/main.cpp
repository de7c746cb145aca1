// The demonstration site: serves sample server files, a mail script and a payment page to programs
// on this machine.

#include <QCoreApplication>
#include <algorithm>
#include <charconv>
#include <csignal>
#include <ctime>
#include <exception>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "loopback/loopback_server.h"
#include "site.h"

namespace benevix {
namespace {

constexpr int exitFailure = 1;
constexpr int exitUsage = 2;
constexpr int highestPort = 65535;
constexpr std::string_view usage = "usage: benevix-site [--port N] --folder DIR\n";

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

void LogRequest(const LoopbackServer::Request& request, const LoopbackServer::Answer& answer) {
  const std::time_t now = std::time(nullptr);
  // "-" stands for what a broken request did not say.
  const std::string method = request.method.empty() ? "-" : request.method;
  const std::string target = request.target.empty() ? "-" : OneLine(request.target);
  const size_t bytes = request.method == "HEAD" ? 0 : answer.body.size();
  std::cout << std::put_time(std::localtime(&now), "%Y-%m-%d %H:%M:%S") << ' ' << method << ' '
            << target << ' ' << answer.status << ' ' << bytes << std::endl;
}

LoopbackServer::Answer AnswerTo(const LoopbackServer::Request& request, Site& site) {
  constexpr int badRequest = 400, methodNotAllowed = 405;
  const bool reads = request.method == "GET" || request.method == "HEAD";
  const SiteAnswer page = request.method.empty() ? ErrorAnswer(badRequest)
                          : reads                ? site.Answer(request.target)
                                                 : ErrorAnswer(methodNotAllowed);
  LoopbackServer::Answer answer{
      .status = page.status, .contentType = page.contentType, .body = page.body};
  if (page.status == methodNotAllowed) answer.headers.emplace_back("Allow", "GET, HEAD");
  return answer;
}

// To be called before there are threads, which all inherit what is blocked.
sigset_t BlockStopSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  return signals;
}

int Run(const Options& options) {
  const sigset_t stopSignals = BlockStopSignals();
  LoopbackServer server;
  if (server.Bind(options.port) == 0) {
    std::cerr << "benevix-site: port " << options.port << " cannot be used\n";
    return exitFailure;
  }
  Site site(options.folder, server.Address());
  server.Start([&site](const LoopbackServer::Request& request) {
    const LoopbackServer::Answer answer = AnswerTo(request, site);
    LogRequest(request, answer);
    return answer;
  });
  std::cout << server.Address() << std::endl;
  int signal = 0;
  sigwait(&stopSignals, &signal);
  server.Stop();  // before the site goes
  return 0;
}

}  // namespace
}  // namespace benevix

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
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
