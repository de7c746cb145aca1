#pragma once

#include <string>

#include "core/settings_store.h"
#include "forms/frmBVX.h"
#include "platform/http_client.h"

namespace benevix {

// Gives both HTTP controls the machine's settings: `Proxy` unless it is empty, and the whole
// seconds of `TimeOut`, or 5 when that is no number. Raises RuntimeError for a number beyond 32
// bits.
void ApplyConnectionSettings(SettingsStore& settings, frmBVX& main);

// The answer of an address, by the control's proxy and time-out whatever the options say. Raises
// RuntimeError when none comes.
std::string OpenURL(HttpClient& client, const HttpControl& control, const std::string& address,
                    HttpOptions options = {});

}  // namespace benevix
