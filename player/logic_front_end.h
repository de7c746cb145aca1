#pragma once

#include <map>

#include "player/front_end.h"
#include "player/world_boxes.h"

namespace benevix {

// The program without windows: the user's doings go straight to the structs.
class LogicFrontEnd : public FrontEnd {
 public:
  explicit LogicFrontEnd(BoxAnswers& answers) : boxes_(answers, waits_) {}

  void Start(Program& program) override;
  void Stop() override;

  bool Click(const Target& target) override;
  bool Type(const Target& target, const std::string& text) override;
  bool Press(const Target& target, const std::string& key) override;
  bool Select(const Target& target, int row, MouseButton button) override;
  bool Pick(const Target& target, const std::string& entry) override;
  bool Leave(const Target& target) override;
  bool Hover(const Target& target) override;
  bool Scroll(const Target& target, int value) override;
  bool Tick(const Target& target, int times) override;
  bool Close(Desk::Entry& window) override;
  bool Shot(const std::string& /*name*/) override { return true; }

  std::optional<std::string> Read(const Target& target, const std::string& property) override;

  MessageBoxes& Boxes() override { return boxes_; }
  Waits& TheWaits() override { return waits_; }

 private:
  // Nothing stands still for a wait; that there was one matters.
  class CountedWaits : public Waits {
   public:
    void Begin() override { ++count; }
    void End() override {}
    void DoEvents() override { ++count; }
    int count = 0;
  };

  class AnsweredBoxes : public MessageBoxes {
   public:
    AnsweredBoxes(BoxAnswers& answers, Waits& waits) : answers_(answers), waits_(waits) {}
    BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                   BoxButtons buttons) override {
      const WaitScope wait(waits_);
      return answers_.Take({title, text, icon, buttons});
    }

   private:
    BoxAnswers& answers_;
    Waits& waits_;
  };

  // The selecting of a box's text that was seen last.
  struct Seen {
    int loads = 0;
    int selections = 0;
  };

  [[nodiscard]] Input& User() { return program_->TheInput(); }
  [[nodiscard]] bool HasFocus(const Target& target) const;
  bool GiveFocus(const Target& target);
  // Presses and releases a key in the control that has the focus.
  void PressHere(const Target& target, const std::string& key);
  void PressIn(const Target& target, TextBox& box, const std::string& key);
  void PressIn(ComboBox& combo, const std::string& key);
  [[nodiscard]] bool IsSelected(const Target& target, const TextBox& box) const;
  void Deselect(const Target& target, const TextBox& box);

  Program* program_ = nullptr;
  CountedWaits waits_;
  AnsweredBoxes boxes_;
  std::map<const TextBox*, Seen> seen_;
};

}  // namespace benevix
