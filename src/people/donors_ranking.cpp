#include "people/donors_ranking.h"

#include <string_view>

#include "base/lines.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace benevix {
namespace {

constexpr int kMyName = 0;
constexpr int kBoth = 2;

}  // namespace

void DonorsRanking::Form_Load() {
  Choose(window_.Option1, kMyName);
  window_.Text1.enabled = false;
  const std::string stored = Stored();
  if (stored.empty()) return;
  std::string_view rest = stored;
  Choose(window_.Option1, static_cast<std::size_t>(Val(CutField(rest, ','))));
  window_.Text1.Write(std::string(rest));
  window_.Text1.enabled = !window_.Option1[kMyName].value;
}

std::string DonorsRanking::Stored() const {
  try {
    std::string stored = codec_.Unscramble(settings_.GetUserString("RankOpt"));
    std::string_view rest = stored;
    const double option = Val(CutField(rest, ','));
    return option >= kMyName && option <= kBoth ? stored : "";
  } catch (const RuntimeError&) {
    return {};  // the choice must be made again
  }
}

void DonorsRanking::Option1_Click(int index) {
  if (index == kMyName) window_.Text1.Write("");
  window_.Text1.enabled = index != kMyName;
}

std::string DonorsRanking::ForNotice(bool takesPart) {
  if (!takesPart) return ",0";
  const std::string choice(Trim(Stored()));
  return choice.empty() ? ",1" : ",1," + codec_.Scramble(choice);
}

void DonorsRanking::Command1_Click() {
  const int option = Chosen(window_.Option1);
  if (option != kMyName && Trim(window_.Text1.text).empty()) {
    messages_.Show("Business Name is required");
    return;
  }
  const std::string choice = std::to_string(option) + "," + window_.Text1.text;
  if (!settings_.SaveUserString("RankOpt", codec_.Scramble(choice))) {
    window_.Text1.note = kNotSavedNote;
    return;
  }
  desk_.Unload(window_);
}

}  // namespace benevix
