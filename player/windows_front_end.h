#pragma once

#include <memory>
#include <string>

#include "mirror/mirror/mirror.h"
#include "mirror/mirror/qt_message_boxes.h"
#include "player/front_end.h"
#include "player/world_boxes.h"

namespace benevix {

// The real windows: keys, clicks and menu choices go through the widgets and their windows, and
// what is checked is read back from them.
class WindowsFrontEnd : public FrontEnd {
 public:
  // `shots` is the folder for pictures, empty for none.
  WindowsFrontEnd(BoxAnswers& answers, std::string shots);

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
  bool Shot(const std::string& name) override;

  std::optional<std::string> Read(const Target& target, const std::string& property) override;

  MessageBoxes& Boxes() override { return boxes_; }
  Waits& TheWaits() override { return mirror_; }

 private:
  // The box on the screen is answered by its own button.
  class AnsweredBoxes : public MessageBoxes {
   public:
    AnsweredBoxes(Waits& waits, BoxAnswers& answers) : real_(waits), answers_(answers) {}
    BoxAnswer Show(const std::string& title, const std::string& text, BoxIcon icon,
                   BoxButtons buttons) override;

   private:
    QtMessageBoxes real_;
    BoxAnswers& answers_;
  };

  // The widget of a control that the user can reach, made the front one; null when he cannot.
  QWidget* Reach(const Target& target);
  QWidget* WidgetOf(const Target& target) const;
  bool FocusByMouse(const Target& target, QWidget& widget);
  bool ClickMenu(const Target& target);
  void Settle();

  Mirror mirror_;
  AnsweredBoxes boxes_;
  std::string shots_;
  Program* program_ = nullptr;
};

inline std::unique_ptr<FrontEnd> MakeWindowsFrontEnd(BoxAnswers& answers,
                                                     const std::string& shots) {
  return std::make_unique<WindowsFrontEnd>(answers, shots);
}

}  // namespace benevix
