#include "server/server_files.h"

#include "base/runtime_error.h"
#include "session/fees.h"

namespace benevix {

std::string ServerFiles::OpenURL(const std::string& address, HttpOptions options) {
  options.proxy = main_.Inet1.proxy;
  options.timeout = main_.Inet1.requestTimeout;
  return surroundings_.http.OpenURL(address, options);
}

std::string ServerFiles::FetchServerText(const std::string& path, HttpOptions options) {
  return OpenURL(surroundings_.info.deployment.serverBase + path, std::move(options));
}

std::string ServerFiles::FetchUsable(const std::string& path) {
  try {
    std::string answer = FetchServerText(path);
    return answer.find('<') == std::string::npos ? answer : std::string();
  } catch (const RuntimeError&) {
    return {};
  }
}

void ServerFiles::CheckServerStatus() {
  run_.ServerOK = FetchUsable("53rv3r/status.txt") == "server ok";
}

std::optional<ServerFiles::ContactData> ServerFiles::GetContactData() {
  const std::string answer = FetchUsable("53rv3r/ctact.dat");
  const auto comma = answer.find(',');
  if (comma == std::string::npos) return std::nullopt;
  return ContactData{answer.substr(0, comma), answer.substr(comma + 1)};
}

void ServerFiles::LoadFeeRates(FeeRates& rates) {
  try {
    ReadFeeRates(FetchServerText("53rv3r/rates.dat"), rates, main_);
  } catch (const RuntimeError&) {
    // What was read so far stands.
  }
}

}  // namespace benevix
