#pragma once

#include <QUrl>
#include <string>

namespace benevix {

// The URL to request for an address (in the code page). Percent-encodes the characters that are not
// allowed in a request line, such as blanks, control characters, bytes above 127, # and a % that
// begins no escape. Qt normalizes the rest by RFC 3986, 6.2.2 (%41 is sent as A, /a/../b as /b) and
// removes one of two slashes at the beginning of the path. Raises RuntimeError when it is not an
// http or https address.
QUrl WireUrl(const std::string& address);

// Raises RuntimeError for a URL that is not http or https or has no host.
void CheckWebUrl(const QUrl& url);

}  // namespace benevix
