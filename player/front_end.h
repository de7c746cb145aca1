#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "controls/desk.h"
#include "platform/message_boxes.h"
#include "platform/waits.h"
#include "player/world_records.h"
#include "program/program.h"

namespace benevix {

// A window, or one of its controls.
struct Target {
  Desk::Entry* window = nullptr;
  const NamedControl* control = nullptr;  // null for the window itself
  int element = -1;                       // of a menu array, -1 otherwise
};

// How the user's actions reach the program, and where what he sees is read: on the logic alone or
// on real windows. Actions give false when they cannot be done. Texts are of the code page.
class FrontEnd {
 public:
  virtual ~FrontEnd() = default;

  // A run of the program begins: it is built, Main comes next.
  virtual void Start(Program& program) = 0;
  // The run has ended; the program is destroyed next.
  virtual void Stop() = 0;

  virtual bool Click(const Target& target) = 0;
  virtual bool Type(const Target& target, const std::string& text) = 0;
  // The same as from the clipboard, in one piece.
  virtual bool Paste(const Target& target, const std::string& text) = 0;
  // A key of words.h, or one character.
  virtual bool Press(const Target& target, const std::string& key) = 0;
  virtual bool Select(const Target& target, int row, MouseButton button) = 0;
  // The heading of a table's column, from 0.
  virtual bool ClickColumn(const Target& target, int column) = 0;
  virtual bool Pick(const Target& target, const std::string& entry) = 0;
  virtual bool Leave(const Target& target) = 0;
  virtual bool Hover(const Target& target) = 0;
  virtual bool Scroll(const Target& target, int value) = 0;
  // A timer that is not enabled, or no longer, does nothing.
  virtual bool Tick(const Target& target, int times) = 0;
  // The page that a viewer shows leads to this address.
  virtual bool Arrive(const Target& target, const std::string& address) = 0;
  virtual bool Close(Desk::Entry& window) = 0;
  virtual bool Shot(const std::string& name) = 0;

  // Another program covers the windows until they are brought to the front.
  virtual void Cover() = 0;
  virtual void BringToFront() = 0;
  [[nodiscard]] virtual bool IsInFront() const = 0;

  // The property's text; nothing when there is no such property, row or element.
  virtual std::optional<std::string> Read(const Target& target, const std::string& property) = 0;

  virtual MessageBoxes& Boxes() = 0;
  virtual Waits& TheWaits() = 0;
};

using FrontEndMaker = std::function<std::unique_ptr<FrontEnd>(BoxAnswers& answers)>;

std::unique_ptr<FrontEnd> MakeLogicFrontEnd(BoxAnswers& answers);

// `shots` is the folder for pictures, empty for none.
std::unique_ptr<FrontEnd> MakeWindowsFrontEnd(BoxAnswers& answers, const std::string& shots);

// Whether the environment names a display; without one, windows can be drawn off the screen.
bool IsDisplayNamed();

}  // namespace benevix
