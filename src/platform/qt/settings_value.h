#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>
#include <string>

namespace benevix {

// A registry value as one line of a settings file:
//   text:John Doe   a text (control characters and % percent-encoded, UTF-8)
//   dword:0000002a  a number
//   hex:00ff        bytes
// A value that somebody wrote without such a beginning is a text as it stands, without blanks at
// its ends.

// `bytes` as the registry stores them. Nothing when the type is unknown or a number has not 4
// bytes.
std::optional<QByteArray> ToLine(std::uint32_t type, const std::string& bytes);

struct RegistryValue {
  std::uint32_t type = 0;
  std::string bytes;
};

// Nothing when the line holds no such value.
std::optional<RegistryValue> FromLine(const QByteArray& line);

// UTF-8 text without line ends: control characters, % and the characters in `more` (ASCII) are
// percent-encoded.
QByteArray InOneLine(const QByteArray& text, const QByteArray& more = {});

}  // namespace benevix
