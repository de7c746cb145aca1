#include "people/contact_information.h"

#include <algorithm>
#include <string_view>

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/country_list.h"

namespace benevix {
namespace {

bool IsEMail(std::string_view text) {
  return text.find('@') != std::string_view::npos && text.find('.') != std::string_view::npos;
}

}  // namespace

std::string JoinContact(const frmPersInfo& window) {
  std::string text;
  for (int i = 0; i < contact_field::kCount; ++i) {
    text += "dat" + std::to_string(i) + window.Text1[i].text + "^";
  }
  return text;
}

void SplitContact(const std::string& text, frmPersInfo& window) {
  std::size_t at = 0;
  for (int i = 0; i < contact_field::kCount; ++i) {
    const std::string prefix = "dat" + std::to_string(i);
    if (text.compare(at, prefix.size(), prefix) != 0) return;
    at += prefix.size();
    // A field may contain "^": its end is the one before the next field's prefix.
    const bool last = i + 1 == contact_field::kCount;
    const auto end = last ? text.rfind('^') : text.find("^dat" + std::to_string(i + 1), at);
    if (end == std::string::npos || end < at) return;
    window.Text1[i].Write(text.substr(at, end - at));
    at = end + 1;
  }
}

void ContactInformation::Open(ContactCaller caller) {
  caller_ = caller;
  desk_.Show(window_, Modality::Modal, Attention::KeepsMainDisabled);
}

void ContactInformation::Form_Load() {
  LoadCountryList();
  try {
    SplitContact(codec_.Unscramble(settings_.GetUserString("UsrInfo")), window_);
  } catch (const RuntimeError&) {
    // Unreadable details must be entered again.
  }
  window_.Check1.value = settings_.GetUserString("DonRank") == "1" ? 1 : 0;
}

void ContactInformation::LoadCountryList() {
  try {
    window_.Combo1.list =
        ReadCountryList(environment_.files, environment_.info.Resource("wlist.res"), codec_);
  } catch (const RuntimeError&) {
    messages_.Show("Unrecoverable Error. You must reinstall the program. Quiting",
                   BoxIcon::Critical);
    desk_.End();
  }
}

void ContactInformation::Command1_Click(int index) {
  if (index == 0) {
    Save();
  } else {
    Cancel();
  }
}

void ContactInformation::Save() {
  const std::string fullName = window_.Text1[contact_field::kFullName].text;
  if (fullName.find(' ') == std::string::npos) {
    messages_.Show("First and Last Name is required");
    return;
  }
  if (!settings_.SaveUserString("UsrInfo", codec_.Scramble(JoinContact(window_)))) {
    window_.Text1[contact_field::kFullName].note = kNotSavedNote;
    return;
  }
  callbacks_.nameSaved(fullName);
  const ContactCaller caller = caller_;
  const bool complete = !fullName.empty() && !window_.Text1[contact_field::kEMail].text.empty();
  if (caller == ContactCaller::ContactOrganization && !complete) return;
  Reload();
  callbacks_.saved(caller);
}

void ContactInformation::Cancel() {
  Reload();
}

std::string ContactInformation::ForNotice() const {
  std::string text;
  for (const TextBox& box : window_.Text1) text += box.text + ",";
  text.pop_back();
  return codec_.Scramble(text);
}

void ContactInformation::Reload() {
  caller_ = ContactCaller::None;
  desk_.Unload(window_);
  desk_.Load(window_);
}

void ContactInformation::Combo1_Click() {
  window_.Text1[contact_field::kCountry].Write(window_.Combo1.text);
}

void ContactInformation::ShowWhatFollows() {
  const auto& list = window_.Combo1.list;
  const std::string& country = window_.Text1[contact_field::kCountry].text;
  const auto entry = std::find_if(list.begin(), list.end(),
                                  [&](const std::string& name) { return SameText(name, country); });
  window_.Combo1.text = entry == list.end() ? "" : *entry;

  std::string missing;
  for (int i = 0; i < contact_field::kCount; ++i) {
    const std::string_view text = Trim(window_.Text1[i].text);
    const std::string& name = window_.Label1[i].caption;
    if (text.empty()) {
      missing += ", " + name;
    } else if (i == contact_field::kEMail && !IsEMail(text)) {
      missing += R"(, "@" and "." in )" + name;
    }
  }
  window_.Missing.visible = !missing.empty();
  window_.Missing.caption = missing.empty() ? "" : "Missing: " + missing.substr(2);
}

void ContactInformation::Check1_MouseUp() {
  settings_.SaveUserString("DonRank", std::to_string(window_.Check1.value));
  if (window_.Check1.value == 1) desk_.Show(ranking_);
}

}  // namespace benevix
