#include "platform/qt/settings_text.h"

#include <algorithm>

#include "platform/qt/settings_value.h"

namespace benevix {
namespace {

constexpr auto kDefaultName = "(default)";

bool Same(const QByteArray& a, const QByteArray& b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

// The key path in a header line "[path]"; nothing for other lines.
std::optional<QByteArray> KeyOf(QByteArrayView line) {
  const QByteArrayView text = line.trimmed();
  if (!text.startsWith('[') || !text.endsWith(']')) return std::nullopt;
  return QByteArray::fromPercentEncoding(text.sliced(1, text.size() - 2).toByteArray());
}

std::optional<QByteArray> NameOf(QByteArrayView line) {
  const qsizetype end = line.indexOf('=');
  if (end < 0) return std::nullopt;
  const QByteArrayView text = line.first(end).trimmed();
  if (text.startsWith('#') || text.startsWith(';')) return std::nullopt;
  return text == kDefaultName ? QByteArray("")
                              : QByteArray::fromPercentEncoding(text.toByteArray());
}

QByteArray ValueIn(const QByteArray& line) {
  QByteArrayView value = QByteArrayView(line).sliced(line.indexOf('=') + 1);
  if (value.endsWith('\r')) value.chop(1);
  while (value.startsWith(' ')) value = value.sliced(1);
  return value.toByteArray();
}

QByteArray LineOf(const QByteArray& name, const QByteArray& value) {
  return (name.isEmpty() ? QByteArray(kDefaultName) : InOneLine(name, " =[]#;(")) + '=' + value;
}

}  // namespace

qsizetype SettingsText::HeaderAt(const QByteArray& path) const {
  const auto found = std::find_if(lines_.begin(), lines_.end(), [&](const QByteArray& line) {
    const auto key = KeyOf(line);
    return key && Same(*key, path);
  });
  return found == lines_.end() ? -1 : found - lines_.begin();
}

qsizetype SettingsText::EndOfKey(qsizetype header) const {
  const auto next = std::find_if(lines_.begin() + header + 1, lines_.end(),
                                 [](const QByteArray& line) { return KeyOf(line).has_value(); });
  return next - lines_.begin();
}

bool SettingsText::HasKey(const QByteArray& path) const {
  return std::any_of(lines_.begin(), lines_.end(), [&](const QByteArray& line) {
    const auto key = KeyOf(line);
    return key && Same((*key + '\\').left(path.size() + 1), path + '\\');
  });
}

void SettingsText::AddKey(const QByteArray& path) {
  if (HeaderAt(path) >= 0) return;
  while (!lines_.isEmpty() && lines_.last().trimmed().isEmpty()) lines_.removeLast();
  if (!lines_.isEmpty()) lines_.append("");
  lines_.append('[' + InOneLine(path, "[]") + ']');
  lines_.append("");
}

bool SettingsText::RemoveKey(const QByteArray& path) {
  const qsizetype header = HeaderAt(path);
  if (header < 0) return false;
  lines_.remove(header, EndOfKey(header) - header);
  return true;
}

SettingsText::Values SettingsText::ValuesOf(const QByteArray& path) const {
  Values values;
  const qsizetype header = HeaderAt(path);
  const qsizetype end = header < 0 ? 0 : EndOfKey(header);
  for (qsizetype i = header + 1; i < end; ++i) {
    // A file written by hand may have a value twice; the first one counts.
    if (const auto name = NameOf(lines_[i])) values.try_emplace(*name, ValueIn(lines_[i]));
  }
  return values;
}

std::optional<QByteArray> SettingsText::Value(const QByteArray& path,
                                              const QByteArray& name) const {
  const Values values = ValuesOf(path);
  const auto found = values.find(name);
  if (found == values.end()) return std::nullopt;
  return found->second;
}

int SettingsText::Change(const QByteArray& path, Changes changes) {
  const auto isSet = [](const auto& change) { return change.second.has_value(); };
  if (std::any_of(changes.begin(), changes.end(), isSet)) AddKey(path);
  const qsizetype begin = HeaderAt(path) + 1;
  if (begin == 0) return 0;
  const qsizetype end = EndOfKey(begin - 1);
  QList<QByteArray> lines = lines_.first(begin);
  int known = 0;
  for (qsizetype i = begin; i < end; ++i) {
    const auto name = NameOf(lines_[i]);
    const auto change = name ? changes.find(*name) : changes.end();
    if (change == changes.end()) {
      lines.append(lines_[i]);
      continue;
    }
    ++known;
    if (!change->second) continue;  // also where it stands a second time
    lines.append(LineOf(change->first, *change->second));
    changes.erase(change);
  }
  qsizetype last = lines.size();
  while (lines[last - 1].trimmed().isEmpty()) --last;
  for (const auto& [name, value] : changes) {
    if (value) lines.insert(last++, LineOf(name, *value));
  }
  lines_ = lines + lines_.sliced(end);
  return known;
}

}  // namespace benevix
