#pragma once

#include <QPoint>
#include <optional>

class QMainWindow;

namespace benevix {

class SettingsStore;

// How the user has arranged the main window: its place and size, the splitter between list and
// options, and the list's columns. Kept in the user's settings, as numbers of pixels.
class WindowLayout {
 public:
  explicit WindowLayout(SettingsStore& settings) : settings_(settings) {}

  // What was never saved, or cannot be read, stays as it is drawn. The window is made no larger
  // than the screen has room for.
  void Restore(QMainWindow& window) const;
  // Where the window stood, without its frame; nothing when that was never saved.
  [[nodiscard]] std::optional<QPoint> Place() const;
  void Save(const QMainWindow& window) const;

 private:
  SettingsStore& settings_;
};

}  // namespace benevix
