#include "server/server_files.h"

#include "base/runtime_error.h"
#include "server/connection.h"
#include "session/fees.h"

namespace benevix {

bool IsUsable(const std::string& answer) {
  return !answer.empty() && answer.find('<') == std::string::npos;
}

std::string ServerFiles::FetchServerText(const std::string& path, HttpOptions options) {
  return OpenURL(environment_.http, main_.Inet1, Base() + path, std::move(options));
}

std::string ServerFiles::FetchUsable(const std::string& path) {
  try {
    std::string answer = FetchServerText(path, {.limit = kSmallLimit});
    return IsUsable(answer) ? answer : std::string();
  } catch (const RuntimeError&) {
    return {};
  }
}

bool ServerFiles::CheckServerStatus() {
  run_.ServerOK = FetchUsable("53rv3r/status.txt") == "server ok";
  return run_.ServerOK;
}

std::optional<ServerFiles::ContactData> ServerFiles::GetContactData() {
  const std::string answer = FetchUsable("53rv3r/ctact.dat");
  const auto comma = answer.find(',');
  if (comma == std::string::npos) return std::nullopt;
  return ContactData{answer.substr(0, comma), answer.substr(comma + 1)};
}

void ServerFiles::LoadFeeRates() {
  try {
    ReadFeeRates(FetchServerText("53rv3r/rates.dat", {.limit = kSmallLimit}), rates_, main_);
  } catch (const RuntimeError&) {
    // The values read so far are kept.
  }
}

}  // namespace benevix
