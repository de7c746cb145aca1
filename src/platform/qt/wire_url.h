#pragma once

#include <QUrl>
#include <string>

namespace benevix {

// The URL that carries an address to the server as it was built (bytes of the code page). What may
// not stand in a request line is percent-encoded: blanks, control characters, bytes above 127, and
// what would end or change it there, such as # and a % that begins no escape. The toolkit brings
// the rest into the normal form of RFC 3986, 6.2.2 (%41 goes out as A, /a/../b as /b) and takes one
// of two slashes at the path's beginning. Raises RuntimeError when it is no http or https address.
QUrl WireUrl(const std::string& address);

// Raises RuntimeError when it is no http or https URL with a host.
void CheckWebUrl(const QUrl& url);

}  // namespace benevix
