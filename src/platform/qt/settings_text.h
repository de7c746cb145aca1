#pragma once

#include <QByteArray>
#include <QList>
#include <optional>

namespace benevix {

// The text of a settings file, UTF-8: for each key a line "[path\of\the\key]", followed by a line
// "name=value" for each of its values; the default value's name is "(default)". Lines that begin
// with # or ; are comments. Keys and names are case-insensitive. Changes keep all other lines,
// including comments and invalid ones.
class SettingsText {
 public:
  explicit SettingsText(const QByteArray& bytes) : lines_(bytes.split('\n')) {}
  [[nodiscard]] QByteArray Bytes() const { return lines_.join('\n'); }

  // Also true for a key that exists only as the parent of another.
  [[nodiscard]] bool HasKey(const QByteArray& path) const;
  void AddKey(const QByteArray& path);
  // The names of a key's values, in their order; none without such a key.
  [[nodiscard]] QList<QByteArray> Names(const QByteArray& path) const;
  // Removes the key with its values; false when it has no header line.
  bool RemoveKey(const QByteArray& path);

  // The text after the "=" without leading blanks and line end; nothing without such a value.
  [[nodiscard]] std::optional<QByteArray> Value(const QByteArray& path,
                                                const QByteArray& name) const;
  // `value` must be a single line. Adds a missing key.
  void SetValue(const QByteArray& path, const QByteArray& name, const QByteArray& value);
  // False when the value does not exist.
  bool RemoveValue(const QByteArray& path, const QByteArray& name);

 private:
  // Line numbers; -1 when there is no such line.
  [[nodiscard]] qsizetype HeaderAt(const QByteArray& path) const;
  [[nodiscard]] qsizetype EndOfKey(qsizetype header) const;
  [[nodiscard]] qsizetype ValueAt(qsizetype header, const QByteArray& name) const;

  QList<QByteArray> lines_;
};

}  // namespace benevix
