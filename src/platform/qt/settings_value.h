#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/registry.h"

namespace benevix {

// A registry value as one line of a settings file:
//   text:John Doe   a text (UTF-8, control characters and % percent-encoded)
//   dword:0000002a  a number (hexadecimal)
//   hex:00ff        bytes
// A value without such a prefix, written by hand, is a text without the blanks at its ends.

// `bytes` as RegistryKey::Write takes them. Nothing for an unknown type or a number that does not
// have 4 bytes.
std::optional<QByteArray> ToLine(std::uint32_t type, const std::string& bytes);

// Nothing for an invalid number.
std::optional<RegistryValue> FromLine(const QByteArray& line);

// Percent-encodes control characters (so also line ends), % and the characters in `more` (ASCII).
QByteArray InOneLine(const QByteArray& text, const QByteArray& more = {});

}  // namespace benevix
