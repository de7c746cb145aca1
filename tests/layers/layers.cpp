#include "layers.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>
#include <utility>

namespace benevix {
namespace {

struct Room {
  std::string_view folder;
  int floor;
  bool toolkit = false;  // may include the toolkit's headers
};

// Inner rooms stand before those around them.
constexpr std::array kRooms = {
    Room{"src/base/", 0},
    Room{"src/controls/", 1},
    Room{"src/platform/qt/", 6, true},
    Room{"src/platform/linux/", 6},
    Room{"src/platform/windows/", 6},
    Room{"src/platform/", 1},
    Room{"src/core/ui/", 1},
    Room{"src/session/ui/", 1},
    Room{"src/records/ui/", 1},
    Room{"src/online/ui/", 1},
    Room{"src/core/", 2},
    Room{"src/database/", 2},
    Room{"src/session/", 3},
    Room{"src/records/", 4},
    Room{"src/online/", 4},
    Room{"src/program/", 5},
    Room{"src/window/", 6, true},
    Room{"apps/", 7, true},
};

struct Include {
  std::string name;
  int line;
};

const Room* RoomOf(std::string_view path) {
  for (const Room& room : kRooms) {
    if (path.starts_with(room.folder)) return &room;
  }
  return nullptr;
}

// The file named by an include line; nothing for any other line.
std::optional<std::string> IncludedName(std::string_view line) {
  const auto skipBlanks = [&line] {
    line.remove_prefix(std::min(line.size(), line.find_first_not_of(" \t")));
  };
  skipBlanks();
  if (!line.starts_with('#')) return std::nullopt;
  line.remove_prefix(1);
  skipBlanks();
  constexpr std::string_view word = "include";
  if (!line.starts_with(word)) return std::nullopt;
  line.remove_prefix(word.size());
  skipBlanks();
  if (!line.starts_with('<') && !line.starts_with('"')) return std::nullopt;
  line.remove_prefix(1);
  return std::string(line.substr(0, line.find_first_of(">\"")));
}

std::vector<Include> IncludesOf(const std::string& text) {
  std::vector<Include> includes;
  std::istringstream lines(text);
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    if (auto name = IncludedName(line)) includes.push_back({std::move(*name), number});
  }
  return includes;
}

// The toolkit's own headers and those that it makes of drawings.
bool IsToolkit(std::string_view name) {
  const std::string_view file = name.substr(name.rfind('/') + 1);
  const bool capital = name.size() > 1 && name[0] == 'Q' && name[1] >= 'A' && name[1] <= 'Z';
  return capital || name.starts_with("Qt") || file.starts_with("ui_") || file.starts_with("moc_") ||
         name.ends_with(".moc");
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

// The file of the tree that an include of `from` means; empty when it is none of ours.
std::string Resolve(const SourceTree& tree, const std::string& from, const std::string& name) {
  for (const std::string& folder : {FolderOf(from), std::string("src/"), std::string("apps/")}) {
    if (tree.contains(folder + name)) return folder + name;
  }
  return {};
}

class Check {
 public:
  explicit Check(const SourceTree& tree) : tree_(tree) {}

  std::vector<std::string> Faults() {
    for (const auto& [path, text] : tree_) CheckFile(path, text);
    for (const auto& [path, text] : tree_) FindCircle(path);
    return std::move(faults_);
  }

 private:
  void CheckFile(const std::string& path, const std::string& text) {
    const Room* const room = RoomOf(path);
    if (room == nullptr) {
      faults_.push_back(path + ": stands on no floor");
      return;
    }
    for (const Include& include : IncludesOf(text)) {
      const std::string place = path + ":" + std::to_string(include.line) + ": ";
      if (IsToolkit(include.name) && !room->toolkit) {
        faults_.push_back(place + "knows the toolkit: " + include.name);
      }
      const std::string target = Resolve(tree_, path, include.name);
      if (target.empty()) continue;
      includes_[path].push_back(target);
      const Room* const below = RoomOf(target);
      if (below != nullptr && below->floor > room->floor) {
        faults_.push_back(place + "runs up a floor: " + include.name);
      }
    }
  }

  // Depth first; a file met again while it is still open closes a circle.
  void FindCircle(const std::string& path) {
    if (done_.contains(path)) return;
    for (std::size_t i = 0; i < open_.size(); ++i) {
      if (open_[i] != path) continue;
      std::string circle;
      for (; i < open_.size(); ++i) circle += open_[i] + " -> ";
      faults_.push_back("a circle: " + circle + path);
      return;
    }
    open_.push_back(path);
    for (const std::string& target : includes_[path]) FindCircle(target);
    open_.pop_back();
    done_.insert(path);
  }

  const SourceTree& tree_;
  std::map<std::string, std::vector<std::string>> includes_;
  std::vector<std::string> open_;
  std::set<std::string> done_;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> LayerFaults(const SourceTree& tree) {
  return Check(tree).Faults();
}

}  // namespace benevix
