#include "server/connection.h"

#include <cmath>

#include "base/number_text.h"

namespace benevix {

void ApplyConnectionSettings(SettingsStore& settings, frmBVX& main) {
  const auto machine = [&](const std::string& name) {
    return settings.GetString(Root::LocalMachine, kSettingsPath, name);
  };
  const std::string proxy = machine("Proxy");
  const auto timeout = ParseNumber(machine("TimeOut"));
  for (HttpControl* const control : {&main.Inet1, &main.Inet2}) {
    if (!proxy.empty()) control->proxy = proxy;
    control->requestTimeout = timeout ? ToInt32(std::trunc(*timeout)) : 5;
  }
}

std::string OpenURL(HttpClient& client, const HttpControl& control, const std::string& address,
                    HttpOptions options) {
  options.proxy = control.proxy;
  options.timeout = control.requestTimeout;
  return client.OpenURL(address, options);
}

}  // namespace benevix
