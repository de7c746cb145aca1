#pragma once

#include <QByteArray>
#include <QList>
#include <map>
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
  // Removes the key with its values; false when it has no header line.
  bool RemoveKey(const QByteArray& path);

  struct IgnoringCase {
    bool operator()(const QByteArray& a, const QByteArray& b) const {
      return a.compare(b, Qt::CaseInsensitive) < 0;
    }
  };
  // By name; a value is the text after the "=" without leading blanks and line end.
  using Values = std::map<QByteArray, QByteArray, IgnoringCase>;
  // The values of a key; none without such a key.
  [[nodiscard]] Values ValuesOf(const QByteArray& path) const;
  [[nodiscard]] std::optional<QByteArray> Value(const QByteArray& path,
                                                const QByteArray& name) const;
  // The values to be set, each a single line, and those to be removed, which are without one.
  using Changes = std::map<QByteArray, std::optional<QByteArray>, IgnoringCase>;
  // Adds a missing key for a value. Returns how many lines with these names there were.
  int Change(const QByteArray& path, Changes changes);

 private:
  // Line numbers; -1 when there is no such line.
  [[nodiscard]] qsizetype HeaderAt(const QByteArray& path) const;
  [[nodiscard]] qsizetype EndOfKey(qsizetype header) const;

  QList<QByteArray> lines_;
};

}  // namespace benevix
