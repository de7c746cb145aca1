#pragma once

#include <string>

#include "core/wait_notice.h"
#include "server/server_files.h"

namespace benevix {

// The server's large files, fetched while the please-wait window shows the progress. Where the
// deployment names a key, they have to be signed with it: the signature stands beside the file,
// with ".sig" behind its name.
class Downloads {
 public:
  Downloads(ServerFiles& server, WaitWindow wait, const Deployment& deployment)
      : server_(server), wait_(wait), deployment_(deployment) {}

  // Raises RuntimeError when no answer comes.
  [[nodiscard]] std::string Fetch(const std::string& path, HttpOptions options);

  [[nodiscard]] bool MustBeSigned() const { return !deployment_.updateKey.empty(); }
  // Raises RuntimeError when the bytes of the file have to be signed and are not.
  void CheckSignature(const std::string& path, const std::string& bytes);

 private:
  ServerFiles& server_;
  WaitWindow wait_;
  const Deployment& deployment_;
};

}  // namespace benevix
