#pragma once

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "../program_fixture.h"

namespace benevix {

// What must survive: the session with its steps, empty when there is none to continue, the
// favorites and the contact details as they are stored.
using Confirmed = std::vector<std::string>;

inline const std::string kRows =
    "[Peru]\r\n00000042 Water For All, Relief\r\n00000007 Maple & Health, Health\r\n"
    "00000123 Savanna Schools, Education\r\n";
inline const std::string kOldList = ";QUORL1.0000\r\n" + kRows;
inline const std::string kNewList = ";QUORL2\r\n" + kRows + "00000124 Another, Education\r\n";
// Memory keeps what a killed process wrote as a disk does, and nothing waits for it.
void KeepWorldsInMemory();
// A world with the old list and a server that offers the new one; the donor is known.
void Furnish(World& world);

// Somebody who uses the program, in a world that outlives it.
class Donor {
 public:
  explicit Donor(World& world) : world_(world) { boxes_.answer = BoxAnswer::Yes; }

  // Starts the program, or ends it and starts it again, and continues an unfinished session.
  void Start();
  void Save(const std::string& address);
  void EnterBudget(const std::string& dollars);
  void ChoosePayment(std::size_t method);
  // To every question from now on.
  void Answer(bool yes) { boxes_.answer = yes ? BoxAnswer::Yes : BoxAnswer::No; }
  void Donate(const std::string& id, const std::string& amount);
  void AddFavorite(const std::string& id);
  void RemoveFavorite(int index);
  void Choose(MenuItem frmBVX::*command) { Input().ChooseMenu(Main().*command); }
  void Continue();

  [[nodiscard]] Confirmed State();
  [[nodiscard]] bool HasEnded() { return program_->TheDesk().Ended(); }
  [[nodiscard]] Program& TheProgram() { return *program_; }
  // Everything that the program said, in its message boxes and in the guidance line.
  [[nodiscard]] std::string Said();

 private:
  [[nodiscard]] frmBVX& Main() { return program_->TheForms().Get<frmBVX>(); }
  [[nodiscard]] benevix::Input& Input() { return program_->TheInput(); }
  void Select(const std::string& id);
  void Enter(TextBox& box, const std::string& text);

  World& world_;
  WatchedWaits waits_;
  QtHttpClient http_{waits_};
  RecordingBoxes boxes_;
  std::unique_ptr<Program> program_;
  bool sent_ = false;  // by this run of the program
};

// What a donor does, step by step.
using Way = std::vector<std::function<void(Donor&)>>;
// Past every file that the program writes.
Way FixedWay();
Way RandomWay(std::mt19937& random);

}  // namespace benevix
