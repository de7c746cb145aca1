#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace benevix {
namespace {

namespace fs = std::filesystem;

// Source texts by path from the project's folder: "src/base/text.h".
using SourceTree = std::map<std::string, std::string>;

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

// What breaks the rules of the house, one line each: an include that runs up a floor, files that
// include each other in a circle, the toolkit outside its rooms, a room without a floor. Generated
// and library headers are not followed.
class Check {
 public:
  explicit Check(const SourceTree& tree) : tree_(tree) {
    for (const auto& [path, text] : tree_) CheckFile(path, text);
    for (const auto& [path, text] : tree_) FindCircle(path);
  }
  [[nodiscard]] const std::string& Faults() const { return faults_; }

 private:
  static const Room* RoomOf(std::string_view path) {
    const auto* room = std::find_if(kRooms.begin(), kRooms.end(),
                                    [&](const Room& it) { return path.starts_with(it.folder); });
    return room == kRooms.end() ? nullptr : room;
  }

  // The file of the tree that an include of `from` means; empty when it is none of ours.
  [[nodiscard]] std::string Resolve(const std::string& from, const std::string& name) const {
    for (const std::string& folder :
         {from.substr(0, from.rfind('/') + 1), std::string("src/"), std::string("apps/")}) {
      if (tree_.contains(folder + name)) return folder + name;
    }
    return {};
  }

  void CheckFile(const std::string& path, const std::string& text) {
    const Room* const room = RoomOf(path);
    if (room == nullptr) {
      faults_ += path + ": stands on no floor\n";
      return;
    }
    static const std::regex include(R"(^[ \t]*#[ \t]*include[ \t]*[<"]([^>"]*).*)");
    // The toolkit's own headers and those that it makes of drawings.
    static const std::regex toolkit(R"(^Q[A-Zt]|(^|/)(ui_|moc_)|\.moc$)");
    std::istringstream lines(text);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
      ++number;
      std::smatch found;
      if (line.find('#') == std::string::npos || !std::regex_match(line, found, include)) continue;
      const std::string name = found[1], place = path + ":" + std::to_string(number);
      if (std::regex_search(name, toolkit) && !room->toolkit) {
        faults_ += place + ": knows the toolkit: " + name + "\n";
      }
      const std::string target = Resolve(path, name);
      if (target.empty()) continue;
      includes_[path].push_back(target);
      const Room* const below = RoomOf(target);
      if (below != nullptr && below->floor > room->floor) {
        faults_ += place + ": runs up a floor: " + name + "\n";
      }
    }
  }

  // Depth first; a file met again while it is still open closes a circle.
  void FindCircle(const std::string& path) {
    if (done_.contains(path)) return;
    const auto begin = std::find(open_.begin(), open_.end(), path);
    if (begin != open_.end()) {
      faults_ += "a circle: ";
      std::for_each(begin, open_.end(), [&](const auto& file) { faults_ += file + " -> "; });
      faults_ += path + "\n";
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
  std::string faults_;
};

TEST(Layers, ProjectKeepsToItsFloors) {
  SourceTree tree;
  const fs::path project = PROJECT_FOLDER;
  for (const char* top : {"src", "apps"}) {
    for (const auto& entry : fs::recursive_directory_iterator(project / top)) {
      const fs::path extension = entry.path().extension();
      if (extension != ".h" && extension != ".cpp") continue;
      std::ifstream in(entry.path(), std::ios::binary);
      tree[fs::relative(entry.path(), project).generic_string()] = {
          std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
  }
  ASSERT_TRUE(tree.contains("src/program/program.h"));
  EXPECT_EQ(Check(tree).Faults(), "");
}

TEST(Layers, TheCheckFindsEveryKindOfFault) {
  const SourceTree tree = {
      {"src/base/a.h", "#include \"base/b.h\"\n#include <string>\n"},
      {"src/base/b.h", "#include \"c.h\"\n"},
      {"src/base/c.h", "#include \"base/b.h\"\n"},
      {"src/cellar/x.h", ""},
      {"src/online/ui/w.h", "#include \"base/a.h\"\n"},
      {"src/database/d.h", "#include \"online/ui/w.h\"\n#include \"core/c.h\"\n"},
      {"src/core/c.h", "\n  #  include \"session/s.h\"\n"},
      {"src/session/s.h", "#include \"sibling.h\"\n#include \"QString\"\n#include \"ui_frm.h\"\n"},
      {"src/session/sibling.h", "#include \"platform/linux/l.h\"\n"},
      {"src/platform/linux/l.h", "#include \"platform/i.h\"\n#include <QtCore/QFile>\n"},
      {"src/platform/i.h", ""},
      {"src/window/w.cpp", "#include <QWidget>\n#include \"ui_frm.h\"\n"},
      {"apps/one/main.cpp", "#include \"two/t.h\"\n#include \"session/s.h\"\n"},
      {"apps/two/t.h", ""},
  };
  EXPECT_EQ(Check(tree).Faults(),
            "src/cellar/x.h: stands on no floor\n"
            "src/core/c.h:2: runs up a floor: session/s.h\n"
            "src/platform/linux/l.h:2: knows the toolkit: QtCore/QFile\n"
            "src/session/s.h:2: knows the toolkit: QString\n"
            "src/session/s.h:3: knows the toolkit: ui_frm.h\n"
            "src/session/sibling.h:1: runs up a floor: platform/linux/l.h\n"
            "a circle: src/base/b.h -> src/base/c.h -> src/base/b.h\n");
}

}  // namespace
}  // namespace benevix
