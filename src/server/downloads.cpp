#include "server/downloads.h"

#include "base/runtime_error.h"
#include "platform/signature.h"

namespace benevix {

std::string Downloads::Fetch(const std::string& path, HttpOptions options) {
  WaitNotice notice(wait_);
  options.limit = kDownloadLimit;
  options.isLong = true;
  options.progress = notice.Progress();
  return server_.FetchServerText(path, std::move(options));
}

void Downloads::CheckSignature(const std::string& path, const std::string& bytes) {
  if (!MustBeSigned()) return;
  const std::string signature =
      server_.FetchServerText(path + ".sig", {.limit = kSmallLimit, .needsOk = true});
  if (!IsSignedBy(deployment_.updateKey, bytes, signature)) {
    throw RuntimeError(path + " is not signed by those who run the server");
  }
}

}  // namespace benevix
