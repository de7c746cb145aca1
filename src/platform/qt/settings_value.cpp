#include "platform/qt/settings_value.h"

#include <QtEndian>

#include "base/text.h"

namespace benevix {
namespace {

constexpr QByteArrayView kText = "text:";
constexpr QByteArrayView kNumber = "dword:";
constexpr QByteArrayView kBinary = "hex:";

// The registry stores texts with their terminating NUL.
std::string WithNul(const QByteArray& utf8) {
  return FromUtf8(utf8.toStdString()) + '\0';
}

}  // namespace

QByteArray InOneLine(const QByteArray& text, const QByteArray& more) {
  QByteArray line;
  line.reserve(text.size());
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (code < 0x20 || code == 0x7F || c == '%' || more.contains(c)) {
      line += '%' + QByteArray(1, c).toHex();
    } else {
      line += c;
    }
  }
  return line;
}

std::optional<QByteArray> ToLine(std::uint32_t type, const std::string& bytes) {
  switch (type) {
    case value_type::kText: {
      const bool hasNul = bytes.ends_with('\0');
      const std::string text = ToUtf8(bytes.substr(0, bytes.size() - (hasNul ? 1 : 0)));
      return kText.toByteArray() + InOneLine(QByteArray::fromStdString(text));
    }
    case value_type::kNumber: {
      if (bytes.size() != sizeof(quint32)) return std::nullopt;
      const QByteArray digits = QByteArray::number(qFromLittleEndian<quint32>(bytes.data()), 16);
      return kNumber.toByteArray() + digits.rightJustified(8, '0');
    }
    case value_type::kBinary:
      return kBinary.toByteArray() + QByteArray::fromStdString(bytes).toHex();
    default:
      return std::nullopt;
  }
}

std::optional<RegistryValue> FromLine(const QByteArray& line) {
  if (line.startsWith(kText)) {
    const QByteArray text = QByteArray::fromPercentEncoding(line.mid(kText.size()));
    return RegistryValue{value_type::kText, WithNul(text)};
  }
  if (line.startsWith(kNumber)) {
    bool ok = false;
    const quint32 number = line.mid(kNumber.size()).trimmed().toUInt(&ok, 16);
    if (!ok) return std::nullopt;
    std::string bytes(sizeof(number), '\0');
    qToLittleEndian(number, bytes.data());
    return RegistryValue{value_type::kNumber, bytes};
  }
  if (line.startsWith(kBinary)) {
    const QByteArray bytes = QByteArray::fromHex(line.mid(kBinary.size()));
    return RegistryValue{value_type::kBinary, bytes.toStdString()};
  }
  return RegistryValue{value_type::kText, WithNul(line.trimmed())};
}

}  // namespace benevix
