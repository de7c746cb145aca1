#include <algorithm>
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

struct Layer {
  std::string folder;
  std::vector<std::string> below;  // what it may include, with all that those may
  bool toolkit = false;            // may include the toolkit's headers
};

// From the ground up; a folder stands before the one around it.
const std::vector<Layer> kLayers = {
    {"src/base/", {}},
    {"src/platform/linux/", {"src/platform/"}},
    {"src/platform/qt/", {"src/platform/"}, true},
    {"src/platform/", {"src/base/"}},
    {"src/controls/", {"src/base/"}},
    {"src/forms/", {"src/controls/"}},
    {"src/core/", {"src/forms/", "src/platform/"}},
    {"src/database/", {"src/core/"}},
    {"src/session/", {"src/database/"}},
    {"src/journal/", {"src/session/"}},
    {"src/help/", {"src/journal/"}},
    {"src/server/", {"src/help/"}},
    {"src/people/", {"src/server/"}},
    {"src/records/", {"src/people/"}},
    {"src/giving/", {"src/records/"}},
    {"src/program/", {"src/giving/"}},
    {"src/mirror/look/", {"src/controls/"}, true},
    {"src/mirror/page_viewer/", {"src/platform/qt/"}, true},
    {"src/mirror/bindings/",
     {"src/mirror/look/", "src/mirror/page_viewer/", "src/database/"},
     true},
    {"src/mirror/mirror/", {"src/mirror/bindings/"}, true},
    {"loopback/", {}, true},
    {"player/",
     {"src/program/", "src/mirror/mirror/", "src/platform/linux/", "src/platform/qt/", "loopback/"},
     true},
    {"apps/benevix/",
     {"src/program/", "src/mirror/mirror/", "src/platform/linux/", "src/platform/qt/"},
     true},
    {"apps/", {"apps/benevix/", "player/"}, true},
    {"bench/", {"apps/"}, true},
};

// What breaks the rules, one line each: an include that runs up a layer or sideways, files that
// include each other in a circle, the toolkit where it is not allowed, a folder without a layer.
// Generated and library headers are not followed.
class Check {
 public:
  explicit Check(const SourceTree& tree) : tree_(tree) {
    for (const auto& [path, text] : tree_) CheckFile(path, text);
    for (const auto& [path, text] : tree_) FindCircle(path);
  }
  [[nodiscard]] const std::string& Faults() const { return faults_; }

 private:
  static const Layer* LayerOf(std::string_view path) {
    const auto found = std::find_if(kLayers.begin(), kLayers.end(), [&](const Layer& layer) {
      return path.starts_with(layer.folder);
    });
    return found == kLayers.end() ? nullptr : &*found;
  }

  static bool MayInclude(const Layer& from, const Layer& to) {
    return &from == &to ||
           std::any_of(from.below.begin(), from.below.end(),
                       [&](const std::string& folder) { return MayInclude(*LayerOf(folder), to); });
  }

  // The file of the tree that an include of `from` means; empty when it is not one of the project's
  // files.
  [[nodiscard]] std::string Resolve(const std::string& from, const std::string& name) const {
    for (const std::string& folder : {from.substr(0, from.rfind('/') + 1), std::string("src/"),
                                      std::string("apps/"), std::string()}) {
      if (tree_.contains(folder + name)) return folder + name;
    }
    return {};
  }

  void CheckFile(const std::string& path, const std::string& text) {
    const Layer* const layer = LayerOf(path);
    if (layer == nullptr) {
      faults_ += path + ": belongs to no layer\n";
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
      if (std::regex_search(name, toolkit) && !layer->toolkit) {
        faults_ += place + ": knows the toolkit: " + name + "\n";
      }
      const std::string target = Resolve(path, name);
      if (target.empty()) continue;
      includes_[path].push_back(target);
      const Layer* const other = LayerOf(target);
      if (other != nullptr && !MayInclude(*layer, *other)) {
        faults_ += place + ": is not below: " + name + "\n";
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

TEST(Layers, TheProjectKeepsToItsLayers) {
  SourceTree tree;
  const fs::path project = PROJECT_FOLDER;
  for (const char* top : {"src", "loopback", "player", "apps", "bench"}) {
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
      {"src/forms/w.h", "#include \"base/a.h\"\n#include \"core/c.h\"\n"},
      {"src/core/c.h", "\n  #  include \"session/s.h\"\n#include \"forms/w.h\"\n"},
      {"src/session/s.h", "#include \"sibling.h\"\n#include \"QString\"\n#include \"ui_frm.h\"\n"},
      {"src/session/sibling.h", "#include \"base/a.h\"\n"},
      {"src/people/p.h", "#include \"records/r.h\"\n#include \"session/s.h\"\n"},
      {"src/records/r.h", ""},
      {"src/platform/linux/l.h", "#include \"platform/i.h\"\n#include <QtCore/QFile>\n"},
      {"src/platform/i.h", ""},
      {"src/mirror/look/w.cpp", "#include <QWidget>\n#include \"ui_frm.h\"\n"},
      {"src/mirror/mirror/m.cpp", "#include \"session/s.h\"\n#include \"forms/w.h\"\n"},
      {"player/p.cpp", "#include \"apps/two/t.h\"\n"},
      {"apps/one/main.cpp", "#include \"two/t.h\"\n#include \"player/p.h\"\n"},
      {"apps/two/t.h", ""},
  };
  EXPECT_EQ(Check(tree).Faults(),
            "player/p.cpp:1: is not below: apps/two/t.h\n"
            "src/cellar/x.h: belongs to no layer\n"
            "src/core/c.h:2: is not below: session/s.h\n"
            "src/forms/w.h:2: is not below: core/c.h\n"
            "src/mirror/mirror/m.cpp:1: is not below: session/s.h\n"
            "src/people/p.h:1: is not below: records/r.h\n"
            "src/platform/linux/l.h:2: knows the toolkit: QtCore/QFile\n"
            "src/session/s.h:2: knows the toolkit: QString\n"
            "src/session/s.h:3: knows the toolkit: ui_frm.h\n"
            "a circle: src/base/b.h -> src/base/c.h -> src/base/b.h\n"
            "a circle: src/core/c.h -> src/forms/w.h -> src/core/c.h\n");
}

}  // namespace
}  // namespace benevix
