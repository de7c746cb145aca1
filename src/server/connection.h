#pragma once

#include <string>

#include "core/settings_store.h"
#include "forms/frmBVX.h"
#include "platform/http_client.h"

namespace benevix {

// Applies the machine's settings to both HTTP controls: `Proxy` unless it is empty, and `TimeOut`
// in whole seconds, or 5 if it is no number. Raises RuntimeError for a number beyond 32 bits.
void ApplyConnectionSettings(SettingsStore& settings, frmBVX& main);

// Fetches an address with the control's proxy and time-out, which override those of `options`.
// Raises RuntimeError when no answer comes.
std::string OpenURL(HttpClient& client, const HttpControl& control, const std::string& address,
                    HttpOptions options = {});

}  // namespace benevix
