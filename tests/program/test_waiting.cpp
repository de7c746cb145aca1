#include <gtest/gtest.h>

#include "../boxes_of_a_test.h"
#include "benevix-play/stage.h"

namespace benevix {
namespace {

// Looks at the please-wait window whenever the windows would be brought into line.
class WatchedWaits : public Waits {
 public:
  void Begin() override {
    if (program == nullptr || !program->TheDesk().IsShown(program->TheWindows().wait)) return;
    const ProgressBar& bar = program->TheWindows().wait.ProgressBar1;
    if (bar.max == 0) return;
    EXPECT_EQ(bar.max, 100);
    values.push_back(bar.value);
  }
  void End() override {}
  void DoEvents() override { Begin(); }

  Program* program = nullptr;
  std::vector<int> values;
};

class Waiting : public testing::Test {
 protected:
  Waiting() {
    world_.files.Replace(world_.info.Resource("sharedb.dat"),
                         ";QUORL1.0000\r\n[Kenya]\r\n00000042 Water For All, Relief\r\n");
    world_.site.Put("53rv3r/status.txt", {.text = "server ok"});
    world_.settings.Put("user", "ShowWiz", "False");
    waits_.program = &program_;
    program_.Main();
  }
  void Enter() { program_.TheInput().Click(program_.TheWindows().splash.Image2[0]); }
  void ExpectBarMovedToItsEnd() {
    ASSERT_GT(waits_.values.size(), 2U);
    EXPECT_TRUE(std::is_sorted(waits_.values.begin(), waits_.values.end()));
    EXPECT_LT(waits_.values.front(), 100);
    EXPECT_EQ(waits_.values.back(), 100);
    EXPECT_FALSE(program_.TheDesk().IsLoaded(program_.TheWindows().wait));
    waits_.values.clear();
  }

  World world_;
  WatchedWaits waits_;
  QtHttpClient http_{waits_};
  BoxesOfATest boxes_;
  Program program_{{world_.info, world_.settings, http_, boxes_, waits_, world_.clock,
                    world_.random, world_.shell, world_.files, world_.printer}};
};

TEST_F(Waiting, TheBarMovesWithTheBytesOfAList) {
  const std::string list =
      ";QUORL2\r\n[Peru]\r\n00000002 " + std::string(30'000'000, 'N') + ", B\r\n";
  world_.site.Put("53rv3r/dbcurrver.dat", {.text = "2"});
  world_.site.Put("downloads/db2", {.text = list});
  std::filesystem::create_symlink("sharedb.dat", world_.info.Resource("shareddb.dat"));
  Enter();
  ExpectBarMovedToItsEnd();
  world_.site.Put("53rv3r/dbcurrver.dat", {.text = "2.5"});
  program_.TheInput().ChooseMenu(program_.TheWindows().main.mnuUpdateList);
  ExpectBarMovedToItsEnd();
}

TEST_F(Waiting, TheBarMovesWithTheBytesOfAnInformationPage) {
  world_.site.Put("infoDB/42.dat", {.text = std::string(30'000'000, 'W')});
  Enter();
  frmBVX& main = program_.TheWindows().main;
  program_.TheInput().SelectRow(main.ListView1, 2, MouseButton::Left);
  program_.TheInput().ChooseMenu(main.mnuMoreInfo);
  ExpectBarMovedToItsEnd();
  EXPECT_TRUE(program_.TheDesk().IsShown(program_.TheWindows().info));
  EXPECT_EQ(program_.TheWindows().info.Label1.caption.size(), 30'000'000U);
}

TEST_F(Waiting, AnUpdaterThatIsNoneIsNeitherKeptNorStarted) {
  const std::string file = world_.info.folder + "/updater.exe";
  const std::string target = "downloads/updater.exe";
  world_.site.Put("53rv3r/news.txt", {LoopbackServer::Reply::Answer, 200, "2,Update now?=1.0.1"});
  Enter();
  boxes_.answer = BoxAnswer::Yes;
  using Reply = LoopbackServer::Reply;
  for (const SiteAnswer& answer :
       {SiteAnswer{Reply::Answer, 404, "#!/bin/sh\n"}, SiteAnswer{Reply::Answer, 500, "x"},
        SiteAnswer{Reply::Answer, 200, ""}, SiteAnswer{Reply::Close, 200, "x"}}) {
    boxes_.shown.clear();
    world_.site.Put(target, answer);
    program_.TheInput().Click(program_.TheWindows().main.Label12);
    ASSERT_EQ(boxes_.shown.size(), 2U);
    EXPECT_TRUE(boxes_.shown[1].text.starts_with("Benevix - Failed to Connect|The server may be"))
        << boxes_.shown[1].text;
    EXPECT_FALSE(world_.files.Exists(file));
    EXPECT_FALSE(program_.TheDesk().Ended());
  }
  EXPECT_TRUE(world_.shell.started.All().empty());
  world_.site.Put(target, {.text = "#!/bin/sh\n"});
  program_.TheInput().Click(program_.TheWindows().main.Label12);
  EXPECT_EQ(world_.files.ReadAll(file), "#!/bin/sh\n");
  EXPECT_EQ(world_.shell.started.All(), std::vector<std::string>{file});
  EXPECT_TRUE(program_.TheDesk().Ended());
}

}  // namespace
}  // namespace benevix
