#include <algorithm>
#include <map>

#include "base/text.h"
#include "player/front_end.h"
#include "player/properties.h"
#include "player/words.h"

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

// Counts the waits: a key press that a wait follows is not answered by its release.
class CountedWaits : public Waits {
 public:
  void Begin() override { ++count; }
  void End() override {}
  void DoEvents() override { ++count; }
  int count = 0;
};

class QueuedAnswers : public MessageBoxes {
 public:
  QueuedAnswers(BoxAnswers& answers, Waits& waits) : answers_(answers), waits_(waits) {}
  BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                 BoxButtons buttons) override {
    const WaitScope wait(waits_);
    return answers_.Take({title, text, icon, buttons});
  }
  FilePath AskWhereToSave(const std::string& /*title*/, const std::string& /*name*/) override {
    const WaitScope wait(waits_);
    return answers_.TakeFile();
  }

 private:
  BoxAnswers& answers_;
  Waits& waits_;
};

// The program without windows: the user's actions go straight to the structs.
class LogicFrontEnd : public FrontEnd {
 public:
  explicit LogicFrontEnd(BoxAnswers& answers) : boxes_(answers, waits_) {}

  void Start(Program& program) override {
    program_ = &program;
    seen_.clear();
  }

  void Stop() override { program_ = nullptr; }

  bool Click(const Target& target) override {
    return User().Click(*target.control, target.element);
  }

  bool Type(const Target& target, const std::string& text) override {
    // A key that takes the focus away ends the typing.
    return Empty(target) && std::ranges::all_of(KeysOf(text), [&](const std::string& key) {
             if (!HasFocus(target)) return false;
             PressHere(target, key);
             return true;
           });
  }

  bool Paste(const Target& target, const std::string& text) override {
    if (!Empty(target)) return false;
    Control& control = target.control->Base();
    const std::string accepted = User().Accepted(control, text);
    if (!accepted.empty()) {
      auto* const box = target.control->As<TextBox>();
      auto* const combo = target.control->As<ComboBox>();
      if (!(box != nullptr ? User().Type(*box, accepted) : User().Type(*combo, accepted))) {
        return false;
      }
    }
    return accepted == text || User().Refuse(control);
  }

  bool Press(const Target& target, const std::string& key) override {
    if (!GiveFocus(target)) return false;
    PressHere(target, key);
    return true;
  }

  bool Select(const Target& target, int row, MouseButton button) override {
    if (auto* const table = target.control->As<Table>()) return User().SelectRow(*table, row);
    auto* const list = target.control->As<ListView>();
    return list && User().SelectRow(*list, row, button);
  }

  bool ClickColumn(const Target& target, int column) override {
    auto* const table = target.control->As<Table>();
    return table && User().ClickColumn(*table, column);
  }

  bool Pick(const Target& target, const std::string& entry) override {
    auto* const combo = target.control->As<ComboBox>();
    if (!combo) return false;
    const auto found = std::find(combo->list.begin(), combo->list.end(), entry);
    const auto index = static_cast<int>(found - combo->list.begin());
    return found != combo->list.end() && GiveFocus(target) &&
           index < static_cast<int>(combo->list.size()) && User().Pick(*combo, index);
  }

  bool Leave(const Target& target) override {
    return Desk::TakesFocus(*target.control) && User().Leave(target.control->Base());
  }

  bool Hover(const Target& target) override { return User().Hover(target.control->Base()); }

  bool Scroll(const Target& target, int value) override {
    auto* const bar = target.control->As<ScrollBar>();
    return bar && value >= 0 && value <= bar->max && User().Scroll(*bar, value);
  }

  bool Tick(const Target& target, int times) override {
    auto* const timer = target.control->As<Timer>();
    if (!timer || !target.window->loaded || program_->TheDesk().Ended()) return false;
    while (times-- > 0 && User().Tick(*timer)) continue;
    return true;
  }

  bool Arrive(const Target& target, const std::string& address) override {
    auto* const viewer = target.control->As<PageViewer>();
    if (!viewer || !program_->TheDesk().IsUsable(*target.window, *viewer)) return false;
    User().Arrived(*viewer, address);
    return true;
  }

  bool Close(Desk::Entry& window) override { return User().Close(*window.window); }

  bool Shot(const std::string& /*name*/) override { return true; }

  void Cover() override { isInFront_ = false; }
  void BringToFront() override { isInFront_ = true; }
  [[nodiscard]] bool IsInFront() const override { return isInFront_; }

  std::optional<std::string> Read(const Target& target, const std::string& property) override {
    return ReadProperty(program_->TheDesk(), target, property);
  }

  MessageBoxes& Boxes() override { return boxes_; }

  Waits& TheWaits() override { return waits_; }

 private:
  // How often a box's text had been selected when that was last looked at.
  struct Seen {
    int loads = 0;
    int selections = 0;
  };

  [[nodiscard]] Input& User() { return program_->TheInput(); }

  bool HasFocus(const Target& target) const {
    Desk& desk = program_->TheDesk();
    const Control& control = target.control->Base();
    return desk.IsUsable(*target.window, control) && target.window->focus == &control;
  }

  bool GiveFocus(const Target& target) {
    return Desk::TakesFocus(*target.control) && User().Focus(target.control->Base()) &&
           HasFocus(target);
  }

  // Gives the focus to a box that takes typing, and removes what it held.
  bool Empty(const Target& target) {
    auto* const box = target.control->As<TextBox>();
    auto* const combo = target.control->As<ComboBox>();
    if (!box && !(combo && combo->editable)) return false;
    if (!GiveFocus(target)) return false;
    if (box) {
      if (!box->text.empty() && !User().Type(*box, "")) return false;
      Deselect(target, *box);
      return true;
    }
    return combo->text.empty() || User().Type(*combo, "");
  }

  // Presses and releases a key in the control that has the focus.
  void PressHere(const Target& target, const std::string& key) {
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

  bool LetsIn(Control& box, const std::string& key) {
    const int code = key.size() == 1 ? key.front() : KeyCode(key);
    if (User().Accepts(box, static_cast<char>(code))) return true;
    User().Refuse(box);
    return false;
  }

  void PressIn(const Target& target, TextBox& box, const std::string& key) {
    if (key == kEscapeKey || (key == kEnterKey && !box.multiLine)) return;
    if (!LetsIn(box, key)) return;
    const bool erases = key == kBackspaceKey;
    if (erases && box.text.empty()) return;
    std::string text;
    if (!IsSelected(target, box)) text = erases ? WithoutLast(box.text) : box.text;
    if (!erases) text += key == kEnterKey ? "\r\n" : key;
    Deselect(target, box);
    User().Type(box, std::move(text));
  }

  void PressIn(ComboBox& combo, const std::string& key) {
    const bool erases = key == kBackspaceKey;
    if (!combo.editable || (key.size() > 1 && !erases)) return;
    if ((erases && combo.text.empty()) || !LetsIn(combo, key)) return;
    User().Type(combo, erases ? WithoutLast(combo.text) : combo.text + key);
  }

  bool IsSelected(const Target& target, const TextBox& box) const {
    const auto found = seen_.find(&box);
    const bool sameLife = found != seen_.end() && found->second.loads == target.window->loads;
    return box.selections > (sameLife ? found->second.selections : 0);
  }

  void Deselect(const Target& target, const TextBox& box) {
    seen_[&box] = {target.window->loads, box.selections};
  }

  Program* program_ = nullptr;
  CountedWaits waits_;
  QueuedAnswers boxes_;
  std::map<const TextBox*, Seen> seen_;
  bool isInFront_ = true;
};

}  // namespace

std::unique_ptr<FrontEnd> MakeLogicFrontEnd(BoxAnswers& answers) {
  return std::make_unique<LogicFrontEnd>(answers);
}

}  // namespace benevix
