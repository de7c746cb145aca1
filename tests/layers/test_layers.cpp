#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "layers.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

SourceTree ProjectTree() {
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
  return tree;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

TEST(Layers, ProjectKeepsToItsFloors) {
  const SourceTree tree = ProjectTree();
  ASSERT_TRUE(tree.contains("src/program/program.h"));
  EXPECT_EQ(Joined(LayerFaults(tree)), "");
}

TEST(Layers, IncludesRunDownOnly) {
  const SourceTree tree = {
      {"src/base/a.h", "#include <string>\n"},
      {"src/online/ui/w.h", "#include \"base/a.h\"\n"},
      {"src/database/d.h", "#include \"online/ui/w.h\"\n#include \"core/c.h\"\n"},
      {"src/core/c.h", "\n  #  include \"session/s.h\"\n"},
      {"src/session/s.h", "#include \"sibling.h\"\n"},
      {"src/session/sibling.h", "#include \"platform/linux/l.h\"\n"},
      {"src/platform/linux/l.h", "#include \"platform/i.h\"\n"},
      {"src/platform/i.h", ""},
      {"apps/one/main.cpp", "#include \"two/t.h\"\n#include \"session/s.h\"\n"},
      {"apps/two/t.h", ""},
  };
  EXPECT_EQ(Joined(LayerFaults(tree)),
            "src/core/c.h:2: runs up a floor: session/s.h\n"
            "src/session/sibling.h:1: runs up a floor: platform/linux/l.h\n");
}

TEST(Layers, ToolkitStaysInItsRooms) {
  const SourceTree tree = {
      {"src/window/w.cpp", "#include <QWidget>\n#include \"ui_frm.h\"\n"},
      {"src/platform/qt/q.cpp", "#include <QtCore/QFile>\n"},
      {"src/platform/linux/l.cpp", "#include <QtCore/QFile>\n"},
      {"src/session/s.cpp", "#include \"QString\"\n#include \"ui_frm.h\"\n"},
  };
  EXPECT_EQ(Joined(LayerFaults(tree)),
            "src/platform/linux/l.cpp:1: knows the toolkit: QtCore/QFile\n"
            "src/session/s.cpp:1: knows the toolkit: QString\n"
            "src/session/s.cpp:2: knows the toolkit: ui_frm.h\n");
}

TEST(Layers, CirclesAndRoomsWithoutAFloor) {
  const SourceTree tree = {
      {"src/base/a.h", "#include \"base/b.h\"\n"},
      {"src/base/b.h", "#include \"c.h\"\n"},
      {"src/base/c.h", "#include \"base/b.h\"\n"},
      {"src/cellar/x.h", ""},
  };
  EXPECT_EQ(Joined(LayerFaults(tree)),
            "src/cellar/x.h: stands on no floor\n"
            "a circle: src/base/b.h -> src/base/c.h -> src/base/b.h\n");
}

}  // namespace
}  // namespace benevix
