#pragma once

#include <QString>
#include <QUrl>
#include <string>

namespace benevix {

// The URL of an address that the program asks to be shown: a web address (bytes of the code page,
// encoded as at the wire), or a file's path (UTF-8, with / or \) and perhaps "#" and the name of an
// anchor (code page), blanks and all. Raises RuntimeError when it is neither or when the file
// cannot be read.
QUrl PageAddress(const std::string& address);

// Shows the user where a page comes from: the host and its port, or the file's name. Of a long host
// only the end, which names its owner.
QString OriginText(const QUrl& address);

}  // namespace benevix
