#include <filesystem>
#include <gtest/gtest.h>
#include <set>

#include "benevix-play/logic_face.h"
#include "benevix-play/stage.h"

namespace benevix {
namespace {

const std::string kOldList = ";QUORL1.0000\r\n[Kenya]\r\n00000042 Water For All, Relief\r\n";
const std::string kNewList = ";QUORL2.0013\r\n[Peru]\r\n00000002 Newer, B\r\n";

// A program folder and a server that has a newer list.
class ListFolder : public testing::Test {
 protected:
  ListFolder() {
    world_.files.Replace(Resource("sharedb.dat"), kOldList);
    world_.site.Put("53rv3r/status.txt", {.text = "server ok"});
    world_.site.Put("53rv3r/dbcurrver.dat", {.text = "2.0013"});
    world_.site.Put("downloads/db2.0013", {.text = kNewList});
    world_.settings.Put("user", "ShowWiz", "False");
  }

  [[nodiscard]] std::string Resource(const std::string& name) const {
    return world_.info.Resource(name);
  }
  [[nodiscard]] std::set<std::string> ResourceNames() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Resource(""))) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }
  void Enter() {
    Program& program = stage_.TheProgram();
    program.TheInput().Click(program.TheWindows().splash.Image2[0]);
    stage_.AfterLine();
  }
  [[nodiscard]] const ListView& List() { return stage_.TheProgram().TheWindows().main.ListView1; }

  World world_;
  LogicFace face_{world_.boxes};
  Stage stage_{world_, face_};
};

TEST_F(ListFolder, WithTheLinkTheNewListIsLoadedAndFoundAgain) {
  const std::string link = Resource("shareddb.dat");
  std::filesystem::create_symlink("sharedb.dat", link);
  stage_.Start();
  Enter();
  EXPECT_EQ(List().Text(1), "Peru");
  EXPECT_FLOAT_EQ(stage_.TheProgram().Run().DBVersion, 2.0013F);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_FALSE(std::filesystem::is_symlink(Resource("sharedb.dat")));
  EXPECT_FALSE(world_.files.Exists(Resource("$shrdb.dat")));

  world_.site.Down();
  stage_.Restart();
  Enter();
  EXPECT_EQ(List().Text(1), "Peru");
  EXPECT_TRUE(world_.boxes.shown.All().empty());
}

TEST_F(ListFolder, WithoutTheLinkTheNewListStandsUnderItsOtherName) {
  stage_.Start();
  Enter();
  EXPECT_EQ(ResourceNames(), (std::set<std::string>{"shareddb.dat", "wlist.res"}));
  EXPECT_EQ(world_.files.ReadAll(Resource("shareddb.dat")), kNewList);
  EXPECT_TRUE(stage_.HasEnded());
  ASSERT_EQ(world_.boxes.shown.All().size(), 1U);
  EXPECT_EQ(world_.boxes.shown.All()[0].text, "Unrecoverable Error. Quiting");
}

}  // namespace
}  // namespace benevix
