#include "player/logic_front_end.h"

#include <algorithm>

#include "base/text.h"
#include "player/keys.h"
#include "player/properties.h"

namespace benevix {
namespace {

int KeyCode(const std::string& key) {
  if (key == kEnterKey) return keys::kEnter;
  if (key == kTabKey) return keys::kTab;
  if (key == kEscapeKey) return keys::kEscape;
  if (key == kBackspaceKey) return keys::kBackspace;
  return static_cast<unsigned char>(UpperCase(key).front());
}

// The text without its last character; a line break is one.
std::string WithoutLast(const std::string& text) {
  const std::size_t count = text.ends_with("\r\n") ? 2 : 1;
  return text.substr(0, text.size() - std::min(count, text.size()));
}

// The keys that type the text.
std::vector<std::string> KeysOf(const std::string& text) {
  std::vector<std::string> typed;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, "\r\n") == 0) ++i;
    const bool breaks = text[i] == '\r' || text[i] == '\n';
    typed.push_back(breaks ? std::string(kEnterKey) : std::string(1, text[i]));
  }
  return typed;
}

}  // namespace

void LogicFrontEnd::Start(Program& program) {
  program_ = &program;
  seen_.clear();
}

void LogicFrontEnd::Stop() {
  program_ = nullptr;
}

bool LogicFrontEnd::Click(const Target& target) {
  return User().Click(*target.control, target.element);
}

bool LogicFrontEnd::Type(const Target& target, const std::string& text) {
  auto* const box = target.control->As<TextBox>();
  auto* const combo = target.control->As<ComboBox>();
  if (!box && !(combo && combo->editable)) return false;
  if (!GiveFocus(target)) return false;
  if (box) {
    if (!box->text.empty() && !User().Type(*box, "")) return false;
    Deselect(target, *box);
  } else if (!combo->text.empty() && !User().Type(*combo, "")) {
    return false;
  }
  // A key that takes the focus away ends the typing.
  return std::ranges::all_of(KeysOf(text), [&](const std::string& key) {
    if (!HasFocus(target)) return false;
    PressHere(target, key);
    return true;
  });
}

bool LogicFrontEnd::Press(const Target& target, const std::string& key) {
  if (!GiveFocus(target)) return false;
  PressHere(target, key);
  return true;
}

bool LogicFrontEnd::HasFocus(const Target& target) const {
  Desk& desk = program_->TheDesk();
  const Control& control = target.control->Base();
  return desk.IsUsable(*target.window, control) && target.window->focus == &control;
}

bool LogicFrontEnd::GiveFocus(const Target& target) {
  return Desk::TakesFocus(*target.control) && User().Focus(target.control->Base()) &&
         HasFocus(target);
}

void LogicFrontEnd::PressHere(const Target& target, const std::string& key) {
  Control& control = target.control->Base();
  if (key == kTabKey) {
    User().Tab(control, true);
    return;
  }
  const int waitsBefore = waits_.count;
  if (auto* const box = target.control->As<TextBox>()) {
    PressIn(target, *box, key);
  } else if (auto* const combo = target.control->As<ComboBox>()) {
    PressIn(*combo, key);
  } else if (auto* const list = target.control->As<ListView>()) {
    if (key.size() == 1) User().Type(*list, key.front());
  } else if (key == " ") {
    Click(target);
  }
  if (waits_.count == waitsBefore && HasFocus(target)) User().Key(control, KeyCode(key));
}

void LogicFrontEnd::PressIn(const Target& target, TextBox& box, const std::string& key) {
  if (key == kEscapeKey || (key == kEnterKey && !box.multiLine)) return;
  if (!User().Accepts(box, static_cast<char>(key.size() == 1 ? key.front() : KeyCode(key)))) return;
  const bool erases = key == kBackspaceKey;
  if (erases && box.text.empty()) return;
  std::string text;
  if (!IsSelected(target, box)) text = erases ? WithoutLast(box.text) : box.text;
  if (!erases) text += key == kEnterKey ? "\r\n" : key;
  Deselect(target, box);
  User().Type(box, std::move(text));
}

void LogicFrontEnd::PressIn(ComboBox& combo, const std::string& key) {
  const bool erases = key == kBackspaceKey;
  if (!combo.editable || (key.size() > 1 && !erases)) return;
  if (erases && combo.text.empty()) return;
  User().Type(combo, erases ? WithoutLast(combo.text) : combo.text + key);
}

bool LogicFrontEnd::IsSelected(const Target& target, const TextBox& box) const {
  const auto found = seen_.find(&box);
  const bool sameLife = found != seen_.end() && found->second.loads == target.window->loads;
  return box.selections > (sameLife ? found->second.selections : 0);
}

void LogicFrontEnd::Deselect(const Target& target, const TextBox& box) {
  seen_[&box] = {target.window->loads, box.selections};
}

bool LogicFrontEnd::Select(const Target& target, int row, MouseButton button) {
  auto* const list = target.control->As<ListView>();
  return list && User().SelectRow(*list, row, button);
}

bool LogicFrontEnd::Pick(const Target& target, const std::string& entry) {
  auto* const combo = target.control->As<ComboBox>();
  if (!combo) return false;
  const auto found = std::find(combo->list.begin(), combo->list.end(), entry);
  const auto index = static_cast<int>(found - combo->list.begin());
  return found != combo->list.end() && GiveFocus(target) &&
         index < static_cast<int>(combo->list.size()) && User().Pick(*combo, index);
}

bool LogicFrontEnd::Leave(const Target& target) {
  return Desk::TakesFocus(*target.control) && User().Leave(target.control->Base());
}

bool LogicFrontEnd::Hover(const Target& target) {
  return User().Hover(target.control->Base());
}

bool LogicFrontEnd::Scroll(const Target& target, int value) {
  auto* const bar = target.control->As<ScrollBar>();
  return bar && value >= 0 && value <= bar->max && User().Scroll(*bar, value);
}

bool LogicFrontEnd::Tick(const Target& target, int times) {
  auto* const timer = target.control->As<Timer>();
  if (!timer || !target.window->loaded || program_->TheDesk().Ended()) return false;
  for (int i = 0; i < times && User().Tick(*timer); ++i) {
  }
  return true;
}

bool LogicFrontEnd::Close(Desk::Entry& window) {
  return User().Close(*window.window);
}

std::optional<std::string> LogicFrontEnd::Read(const Target& target, const std::string& property) {
  return ReadProperty(program_->TheDesk(), target, property);
}

}  // namespace benevix
