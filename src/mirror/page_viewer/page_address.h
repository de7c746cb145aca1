#pragma once

#include <QString>
#include <QUrl>

#include "base/page.h"

namespace benevix {

// The URL of a page that the program asks to be shown; a web address is encoded as at the wire.
// Raises RuntimeError, in UTF-8, when it is no address of the web and no file that can be read.
QUrl PageAddress(const Page& page);

// Whether the user can be told where a page with this address comes from.
bool HasOrigin(const QUrl& address);

// Shows the user where a page comes from: the scheme, the host and its port, or the file's name. Of
// a long host only the end, which names its owner.
QString OriginText(const QUrl& address);

}  // namespace benevix
