#pragma once

#include <QByteArray>
#include <QList>
#include <optional>

namespace benevix {

// The text of a settings file, UTF-8. A line "[path\of\the\key]" stands for each key, below it a
// line "name=value" for each of its values; the default value's name is written "(default)". Lines
// that begin with # or ; are notes. Keys and names differ by more than upper and lower case.
// Changes leave every other line as it stands, notes and unreadable lines too.
class SettingsText {
 public:
  explicit SettingsText(const QByteArray& bytes) : lines_(bytes.split('\n')) {}
  [[nodiscard]] QByteArray Bytes() const { return lines_.join('\n'); }

  // Also true for a key that is there only as the parent of another.
  [[nodiscard]] bool HasKey(const QByteArray& path) const;
  void AddKey(const QByteArray& path);
  // The key with its values; false when it is not there.
  bool RemoveKey(const QByteArray& path);

  // What stands behind the "=", without a line end or blanks before it.
  [[nodiscard]] std::optional<QByteArray> Value(const QByteArray& path,
                                                const QByteArray& name) const;
  // `value` must be one line. The key is made when it is not there.
  void SetValue(const QByteArray& path, const QByteArray& name, const QByteArray& value);
  // False when it is not there.
  bool RemoveValue(const QByteArray& path, const QByteArray& name);

 private:
  [[nodiscard]] qsizetype HeaderAt(const QByteArray& path) const;
  [[nodiscard]] qsizetype EndOfKey(qsizetype header) const;
  [[nodiscard]] qsizetype ValueAt(qsizetype header, const QByteArray& name) const;

  QList<QByteArray> lines_;
};

}  // namespace benevix
