#include "player/world_site.h"

#include <chrono>
#include <random>
#include <stdexcept>
#include <thread>

#include "platform/qt/wire_url.h"

namespace benevix {
namespace {

// Below the ports that systems give to outgoing connections: no other program gets the port while
// the site is down, and no connection of ours can meet itself there.
constexpr int kFirstPort = 10000;
constexpr int kLastPort = 32000;
constexpr int kTries = 1000;

// The User-Agent of the program's client. A page viewer has another.
constexpr const char* kProgram = "Benevix";

ScriptedAnswer NotFound() {
  return {LoopbackServer::Reply::Answer, 404,
          "<html><head><title>404 Not Found</title></head><body>404 Not Found</body></html>"};
}

}  // namespace

WorldSite::WorldSite() {
  std::random_device random;
  std::uniform_int_distribution<int> ports(kFirstPort, kLastPort);
  for (int i = 0; i < kTries && port_ == 0; ++i) {
    auto server = std::make_unique<LoopbackServer>();
    port_ = server->Bind(ports(random));
    if (port_ == 0) continue;
    address_ = server->Address();
    Listen(std::move(server));
  }
  if (port_ == 0) throw std::runtime_error("no free port for the site");
}

void WorldSite::Put(const std::string& target, ScriptedAnswer answer) {
  const auto wire = WireUrl(address_ + target).toEncoded().toStdString();
  const std::lock_guard lock(mutex_);
  answers_[wire.substr(address_.size())] = std::move(answer);
}

void WorldSite::Up() {
  if (server_) return;
  auto server = std::make_unique<LoopbackServer>();
  if (server->Bind(port_) == 0) throw std::runtime_error("the site's port was taken");
  Listen(std::move(server));
}

void WorldSite::Down() {
  server_.reset();
}

std::optional<std::string> WorldSite::LastTarget() {
  const std::lock_guard lock(mutex_);
  return lastTarget_;
}

void WorldSite::Listen(std::unique_ptr<LoopbackServer> server) {
  server->Start([this](const LoopbackServer::Request& request) {
    Note(request);
    const ScriptedAnswer answer = AnswerTo(request.target);
    const char* const type = answer.text.starts_with('<') ? "text/html" : "text/plain";
    LoopbackServer::Answer given{answer.reply, answer.status, type, answer.text};
    if (!answer.location.empty()) given.headers.emplace_back("Location", answer.location);
    given.pause = answer.pause;
    return given;
  });
  server_ = std::move(server);
}

ScriptedAnswer WorldSite::AnswerTo(const std::string& target) {
  const std::lock_guard lock(mutex_);
  const std::string wanted = target.substr(target.starts_with('/') ? 1 : 0);
  const ScriptedAnswer* longest = nullptr;
  // In the map's order a longer beginning comes after a shorter one.
  for (const auto& [beginning, answer] : answers_) {
    if (wanted.starts_with(beginning)) longest = &answer;
  }
  return longest ? *longest : NotFound();
}

void WorldSite::Note(const LoopbackServer::Request& request) {
  if (request.Header("User-Agent") != kProgram) return;
  const std::lock_guard lock(mutex_);
  lastTarget_ = request.target;
}

}  // namespace benevix
