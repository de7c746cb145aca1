#pragma once

class QMainWindow;

namespace benevix {

class SettingsStore;

// How the user has arranged the main window: its size, the splitter between list and options, and
// the list's columns. Kept as numbers in the user's settings.
class WindowLayout {
 public:
  explicit WindowLayout(SettingsStore& settings) : settings_(settings) {}

  // What was never saved, or cannot be read as an arrangement, stays as it is drawn.
  void Restore(QMainWindow& window) const;
  void Save(const QMainWindow& window) const;

 private:
  SettingsStore& settings_;
};

}  // namespace benevix
