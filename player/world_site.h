#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "loopback/loopback_server.h"

namespace benevix {

// What a script says that the server answers.
struct ScriptedAnswer {
  LoopbackServer::Reply reply = LoopbackServer::Reply::Answer;
  int status = 200;
  std::string text = {};
  double pause = 0;           // seconds before each byte
  std::string location = {};  // where a redirect leads
};

// The server of a world, on a thread of its own. A target without an answer is 404 with an HTML
// page.
class WorldSite {
 public:
  WorldSite();
  ~WorldSite() { Down(); }
  WorldSite(const WorldSite&) = delete;
  WorldSite& operator=(const WorldSite&) = delete;

  // The server base address.
  [[nodiscard]] const std::string& Address() const { return address_; }

  // For every request whose target begins with `target`; the longest wins. Takes a target as the
  // program builds it, without the leading "/".
  void Put(const std::string& target, ScriptedAnswer answer);
  void Down();
  void Up();

  // The target of the last request of the program's own client, as it arrived.
  [[nodiscard]] std::optional<std::string> LastTarget();

 private:
  void Listen(std::unique_ptr<LoopbackServer> server);
  [[nodiscard]] ScriptedAnswer AnswerTo(const std::string& target);
  void Note(const LoopbackServer::Request& request);

  std::mutex mutex_;  // of the answers and the last target
  std::map<std::string, ScriptedAnswer> answers_;
  std::optional<std::string> lastTarget_;
  int port_ = 0;
  std::string address_;
  std::unique_ptr<LoopbackServer> server_;  // last, so that it stops first; null while down
};

}  // namespace benevix
