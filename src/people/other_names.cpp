#include "people/other_names.h"

#include "base/lines.h"
#include "base/runtime_error.h"

namespace benevix {

void OtherNames::LoadOtherNames(ComboBox& names) const {
  try {
    const std::string text = files_.ReadAll(file_);
    for (const std::string_view line : Lines(text)) names.list.emplace_back(line);
  } catch (const RuntimeError&) {
    // The user's own name is enough to go on.
  }
}

void OtherNames::AppendOtherName(const std::string& name) {
  try {
    files_.Append(file_, name + "\r\n");
  } catch (const RuntimeError&) {
    // The name remains in the list until the program ends.
  }
}

}  // namespace benevix
