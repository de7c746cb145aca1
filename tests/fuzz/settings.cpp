#include "base/lines.h"
#include "platform/qt/settings_text.h"
#include "platform/qt/settings_value.h"
#include "targets.h"

namespace benevix {

void CheckSettings(std::string_view input) {
  std::string_view file = input;
  const std::string value = std::string(CutField(file, '\n')) + '\0';
  const QByteArray bytes(file.data(), static_cast<qsizetype>(file.size()));
  const QByteArray path = "Software\\Quorl\\Benevix", name = "Name", other = "Other";
  SettingsText text(bytes);
  Require(text.Bytes() == bytes, "what is not changed stays");
  for (const auto& [known, line] : text.ValuesOf(path)) {
    Require(text.Value(path, known) == line, "a named value is there");
    FromLine(line);
  }
  const auto before = text.Value(path, other);
  text.Change(path, {{name, ToLine(value_type::kText, value)}});
  SettingsText read(text.Bytes());
  Require(FromLine(read.Value(path, name).value_or("")) == RegistryValue{value_type::kText, value},
          "a value is read as it was written");
  Require(read.Value(path, other) == before, "and no other one changes");
  Require(read.Change(path, {{name, std::nullopt}}) > 0 && !read.Value(path, name),
          "a removed value is gone");
  read.RemoveKey(path);
  read.AddKey(path);
  Require(read.HasKey(path), "a key that was added is there");
}

}  // namespace benevix
