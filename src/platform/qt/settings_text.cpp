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
std::optional<QByteArray> KeyOf(const QByteArray& line) {
  const QByteArray text = line.trimmed();
  if (!text.startsWith('[') || !text.endsWith(']')) return std::nullopt;
  return QByteArray::fromPercentEncoding(text.mid(1, text.size() - 2));
}

std::optional<QByteArray> NameOf(const QByteArray& line) {
  const QByteArray text = line.left(line.indexOf('=')).trimmed();
  if (!line.contains('=') || text.startsWith('#') || text.startsWith(';')) return std::nullopt;
  return text == kDefaultName ? QByteArray("") : QByteArray::fromPercentEncoding(text);
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

qsizetype SettingsText::ValueAt(qsizetype header, const QByteArray& name) const {
  if (header < 0) return -1;
  const auto end = lines_.begin() + EndOfKey(header);
  const auto found = std::find_if(lines_.begin() + header + 1, end, [&](const QByteArray& line) {
    const auto lineName = NameOf(line);
    return lineName && Same(*lineName, name);
  });
  return found == end ? -1 : found - lines_.begin();
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

QList<QByteArray> SettingsText::Names(const QByteArray& path) const {
  QList<QByteArray> names;
  const qsizetype header = HeaderAt(path);
  for (qsizetype i = header + 1; header >= 0 && i < EndOfKey(header); ++i) {
    if (const auto name = NameOf(lines_[i])) names.append(*name);
  }
  return names;
}

bool SettingsText::RemoveKey(const QByteArray& path) {
  const qsizetype header = HeaderAt(path);
  if (header < 0) return false;
  lines_.remove(header, EndOfKey(header) - header);
  return true;
}

std::optional<QByteArray> SettingsText::Value(const QByteArray& path,
                                              const QByteArray& name) const {
  const qsizetype at = ValueAt(HeaderAt(path), name);
  if (at < 0) return std::nullopt;
  QByteArray value = lines_[at].mid(lines_[at].indexOf('=') + 1);
  if (value.endsWith('\r')) value.chop(1);
  while (value.startsWith(' ')) value.remove(0, 1);
  return value;
}

void SettingsText::SetValue(const QByteArray& path, const QByteArray& name,
                            const QByteArray& value) {
  AddKey(path);
  const qsizetype header = HeaderAt(path);
  const QByteArray lineName =
      name.isEmpty() ? QByteArray(kDefaultName) : InOneLine(name, " =[]#;(");
  const QByteArray line = lineName + '=' + value;
  const qsizetype at = ValueAt(header, name);
  if (at >= 0) {
    lines_[at] = line;
    return;
  }
  qsizetype end = EndOfKey(header);
  while (lines_[end - 1].trimmed().isEmpty()) --end;
  lines_.insert(end, line);
}

bool SettingsText::RemoveValue(const QByteArray& path, const QByteArray& name) {
  bool removed = false;  // a file written by hand may have the value twice
  for (qsizetype at = 0; (at = ValueAt(HeaderAt(path), name)) >= 0; removed = true) {
    lines_.removeAt(at);
  }
  return removed;
}

}  // namespace benevix
