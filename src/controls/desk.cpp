#include "controls/desk.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "base/runtime_error.h"

namespace benevix {

void Desk::Fire(const Window& window, Event event) const {
  EventArgs args;
  events_.Fire(window, event, args);
}

void Desk::Fire(const Control& control, Event event) const {
  EventArgs args;
  events_.Fire(control, event, args);
}

const Desk::Entry& Desk::Find(const Window& window) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& entry) { return entry.window == &window; });
  if (found == entries_.end()) throw std::logic_error("a window that is not on the desk");
  return *found;
}

Desk::Entry& Desk::Find(const Window& window) {
  return const_cast<Entry&>(std::as_const(*this).Find(window));
}

Desk::Entry& Desk::Holding(const Control& control) {
  for (Entry& entry : entries_) {
    for (const NamedControl& named : entry.controls) {
      if (&named.Base() == &control) return entry;
    }
  }
  throw std::logic_error("a control that is not on the desk");
}

void Desk::Load(Window& window) {
  Entry& entry = Find(window);
  if (entry.loaded) return;
  entry.loaded = true;
  ++entry.loads;
  Fire(window, Event::Load);
}

void Desk::Show(Window& window, Modality modality, Attention attention) {
  Load(window);
  Entry& entry = Find(window);
  if (!entry.loaded) return;  // its load handler has unloaded it
  const bool opened = !entry.shown;
  entry.shown = true;
  entry.modal = modality == Modality::Modal;
  if (opened) entry.keepsMainDisabled = false;
  if (attention == Attention::KeepsMainDisabled) entry.keepsMainDisabled = true;
  std::erase(shown_, &window);
  shown_.push_back(&window);
  if (opened && entry.focus == nullptr) MoveFocus(entry, true);
}

void Desk::Hide(Window& window) {
  Entry& entry = Find(window);
  entry.shown = false;
  entry.modal = false;
  entry.keepsMainDisabled = false;
  std::erase(shown_, &window);
}

void Desk::Unload(Window& window) {
  Entry& entry = Find(window);
  if (!entry.loaded) return;
  entry.loaded = false;  // before the handler, which may unload it again
  Fire(window, Event::Unload);
  Hide(window);
  entry.focus = nullptr;
  entry.reset();
}

void Desk::End() {
  ended_ = true;
  throw ProgramEnded();
}

bool Desk::IsEnabled(const Window& window) const {
  if (entries_.empty() || entries_.front().window != &window) return true;
  return std::none_of(entries_.begin(), entries_.end(),
                      [](const Entry& entry) { return entry.shown && entry.keepsMainDisabled; });
}

bool Desk::IsUsable(const Window& window) const {
  if (ended_ || !IsShown(window) || !IsEnabled(window)) return false;
  for (auto it = shown_.rbegin(); it != shown_.rend(); ++it) {
    if (*it == &window) return true;
    if (Find(**it).modal) return false;
  }
  return false;
}

bool Desk::IsUsable(const Entry& entry, const Control& control) const {
  return IsUsable(*entry.window) && IsOpen(entry, control);
}

bool Desk::IsOpen(const Entry& entry, const Control& control) {
  if (!control.visible) return false;
  for (const Control* now = &control; now->enabled;) {
    const std::string_view holder = now->holder;
    if (holder.empty()) return true;
    const auto found =
        std::find_if(entry.controls.begin(), entry.controls.end(),
                     [&](const NamedControl& named) { return named.name == holder; });
    if (found == entry.controls.end()) throw std::logic_error("a holder that is not there");
    now = &found->Base();
    // A menu is hidden while it is closed; what hides a panel hides what it holds.
    if (!now->visible && found->As<MenuItem>() == nullptr) return false;
  }
  return false;
}

bool Desk::TakesFocus(const NamedControl& control) {
  if (const Table* const table = control.As<Table>()) return table->takesFocus;
  if (const PictureBox* const picture = control.As<PictureBox>()) return picture->isButton;
  return control.As<TextBox>() != nullptr || control.As<Button>() != nullptr ||
         control.As<OptionButton>() != nullptr || control.As<CheckBox>() != nullptr ||
         control.As<ComboBox>() != nullptr || control.As<ListView>() != nullptr ||
         control.As<ScrollBar>() != nullptr;
}

void Desk::ChangeFocus(Entry& entry, Control* to) {
  Control* const from = entry.focus;
  if (from == to) return;
  entry.focus = to;
  for (const NamedControl& control : entry.controls) control.Base().note.clear();
  if (from != nullptr) Fire(*from, Event::LostFocus);
  if (to != nullptr && entry.focus == to) Fire(*to, Event::GotFocus);
}

void Desk::SetFocus(Control& control) {
  Entry& entry = Holding(control);
  if (IsOpen(entry, control)) ChangeFocus(entry, &control);
}

void Desk::ClearFocus(Window& window) {
  ChangeFocus(Find(window), nullptr);
}

void Desk::MoveFocus(Entry& entry, bool forward) {
  const auto count = static_cast<int>(entry.controls.size());
  const auto indexOf = [&](const Control* control) {
    for (int i = 0; i < count; ++i) {
      if (&entry.controls[static_cast<std::size_t>(i)].Base() == control) return i;
    }
    return forward ? -1 : count;
  };
  const int from = indexOf(entry.focus);
  for (int step = 1; step <= count; ++step) {
    const int at = ((forward ? from + step : from - step) % count + count) % count;
    const NamedControl& named = entry.controls[static_cast<std::size_t>(at)];
    if (!TakesFocus(named) || !IsTabStop(entry, named)) continue;
    return ChangeFocus(entry, &named.Base());
  }
}

bool Desk::IsTabStop(const Entry& entry, const NamedControl& control) {
  if (!IsOpen(entry, control.Base())) return false;
  const OptionButton* const option = control.As<OptionButton>();
  if (option == nullptr || option->value) return true;
  // Of a group of options the chosen one is the stop, or the first when none is chosen.
  const OptionButton* first = nullptr;
  for (const NamedControl& other : entry.controls) {
    if (other.name != control.name) continue;
    const OptionButton* const member = other.As<OptionButton>();
    if (member->value) return false;
    if (first == nullptr) first = member;
  }
  return option == first;
}

void Desk::Settle() {
  for (Entry& entry : entries_) {
    if (entry.focus != nullptr && !IsOpen(entry, *entry.focus)) entry.focus = nullptr;
  }
}

}  // namespace benevix
