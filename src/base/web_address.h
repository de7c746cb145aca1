#pragma once

#include <string_view>

namespace benevix {

// Whether nobody on the way can read or change what is sent to an address of the web and what comes
// back: it is https, or http of this machine (localhost, 127.0.0.1, [::1]).
[[nodiscard]] bool IsProtected(std::string_view address);

// Whether the address is http or https.
[[nodiscard]] bool IsWebAddress(std::string_view address);

}  // namespace benevix
