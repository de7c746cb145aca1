#include <filesystem>
#include <gtest/gtest.h>
#include <set>

#include "../program_fixture.h"

namespace benevix {
namespace {

// Records the progress that the please-wait window shows.
class ProgramTest : public testing::Test, public ProgramFixture {
 protected:
  ProgramTest() {
    waits.watch = [this] {
      const ProgressBar& bar = forms.Get<frmWait>().ProgressBar1;
      if (program.TheDesk().IsShown(forms.Get<frmWait>()) && bar.max == 100)
        values.push_back(bar.value);
    };
  }
  // A newer list on the server, and the link through which an installation finds the list.
  void OfferList(const std::string& version, const std::string& list) {
    world.site.Put("53rv3r/dbcurrver.dat", {.text = version});
    world.site.Put("downloads/db" + version, {.text = list});
    std::filesystem::create_symlink("sharedb.dat", world.info.Resource("shareddb.dat").Utf8());
  }
  void ExpectBarMovedToItsEnd() {
    ASSERT_GT(values.size(), 2U);
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_LT(values.front(), 100);
    EXPECT_EQ(values.back(), 100);
    EXPECT_FALSE(program.TheDesk().IsLoaded(forms.Get<frmWait>()));
    values.clear();
  }

  Forms& forms = program.TheForms();
  std::vector<int> values;
};

TEST_F(ProgramTest, ANewListIsInstalledAndFoundThroughTheLink) {
  const std::string link = world.info.Resource("shareddb.dat").Utf8();
  OfferList("2.0013", ";QUORL2.0013\r\n[Peru]\r\n00000002 Newer, B\r\n");
  Enter();
  EXPECT_EQ(forms.Get<frmBVX>().ListView1.Text(1), "Peru");
  EXPECT_FLOAT_EQ(program.Run().DBVersion, 2.0013F);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_FALSE(std::filesystem::is_symlink(world.info.Resource("sharedb.dat").Utf8()));
  EXPECT_FALSE(world.files.Exists(world.info.Resource("$shrdb.dat")));
  world.site.Down();
  program.NewSession();
  EXPECT_EQ(forms.Get<frmBVX>().ListView1.Text(1), "Peru");
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ProgramTest, WhileAnotherCopyUpdatesTheListThisOneDoesNot) {
  OfferList("2", ";QUORL2\r\n[Peru]\r\n00000002 Newer, B\r\n");
  const auto lock = world.files.Lock(world.info.folder / "Resources", {});
  Enter();
  const frmBVX& main = forms.Get<frmBVX>();
  EXPECT_EQ(main.ListView1.Text(1), "Kenya");
  program.TheInput().ChooseMenu(forms.Get<frmBVX>().mnuUpdateList);
  EXPECT_TRUE(main.Label6.caption.starts_with("Another copy of the program"));
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ProgramTest, WithoutTheServerADamagedListGivesWayToTheInstalledOne) {
  world.site.Down();
  world.info.installed = world.info.folder / "installed";
  const FilePath installed = world.info.installed / "Resources/sharedb.dat";
  std::filesystem::create_directories((world.info.installed / "Resources").Utf8());
  world.files.Replace(installed, ";QUORL1\r\n[Peru]\r\n");
  world.files.Replace(world.info.Resource("sharedb.dat"), ";QUORL2\r\n00000002 No comma");
  Program other({world.info, world.settings, http, boxes, waits, world.clock, world.random,
                 world.shell, world.files, world.printer});
  other.Main();
  other.TheInput().Click(other.TheForms().Get<frmSplash>().Image2[0]);
  EXPECT_EQ(other.TheForms().Get<frmBVX>().ListView1.Text(1), "Peru");
  EXPECT_TRUE(boxes.shown.at(0).text.ends_with("installed with the program is used instead."));
  EXPECT_EQ(std::filesystem::read_symlink(world.info.Resource("sharedb.dat").Utf8()),
            installed.Utf8());
}

TEST_F(ProgramTest, UnreadableSettingsAreNoFirstRun) {
  world.settings.Put("machine", "TimeOut", "30");
  const std::string file = (world.info.folder / "../settings/user.conf").Utf8();
  std::filesystem::rename(file, file + ".kept");
  std::filesystem::create_directory(file);  // in the file's place
  program.Main();
  EXPECT_EQ(world.settings.Text("machine", "TimeOut"), "30");
}

TEST_F(ProgramTest, ProgressIsShownForListsAndInformationPages) {
  OfferList("2", ";QUORL2\r\n[Peru]\r\n00000002 " + std::string(30'000'000, 'N') + ", B\r\n");
  Enter();
  ExpectBarMovedToItsEnd();
  world.site.Put("53rv3r/dbcurrver.dat", {.text = "2.5"});
  program.TheInput().ChooseMenu(forms.Get<frmBVX>().mnuUpdateList);
  ExpectBarMovedToItsEnd();
  world.site.Put("infoDB/2.dat", {.text = std::string(30'000'000, 'W')});
  program.TheInput().SelectRow(forms.Get<frmBVX>().ListView1, 2, MouseButton::Left);
  program.TheInput().ChooseMenu(forms.Get<frmBVX>().mnuMoreInfo);
  ExpectBarMovedToItsEnd();
  EXPECT_EQ(forms.Get<frmInfo>().Label1.caption.size(), 30'000'000U);
}

TEST_F(ProgramTest, WhatALongRequestIsForIsToldWhileItLasts) {
  world.settings.Put("user", "BVXDB", "1");  // so that the first run does not set the time-out
  world.settings.Put("machine", "TimeOut", "1");
  world.site.Put("53rv3r/news.txt", {.text = "1," + std::string(kSmallLimit, 'N')});
  Enter();
  EXPECT_EQ(forms.Get<frmBVX>().Label12.tag, "");  // no line of text is as long
  std::set<std::string> told;
  waits.watch = [&] { told.insert(program.TheDesk().Activity()); };
  world.site.Put("infoDB/idcontacts.dat", {LoopbackServer::Reply::Silence, 200, ""});
  program.TheInput().SelectRow(forms.Get<frmBVX>().ListView1, 2, MouseButton::Left);
  program.TheInput().ChooseMenu(forms.Get<frmBVX>().mnuGotheirWeb);
  EXPECT_EQ(told, (std::set<std::string>{"", "Looking up the organization... (Esc cancels)"}));
  EXPECT_EQ(program.TheDesk().Activity(), "");
}

TEST_F(ProgramTest, AnInvalidUpdaterIsNeitherSavedNorStarted) {
  using Reply = LoopbackServer::Reply;
  world.site.Put("53rv3r/news.txt", {.text = "2,Update now?=1.0.1"});
  Enter();
  boxes.answer = BoxAnswer::Yes;
  for (const ScriptedAnswer& answer :
       {ScriptedAnswer{Reply::Answer, 404, "#!/bin/sh\n"}, ScriptedAnswer{Reply::Answer, 500, "x"},
        ScriptedAnswer{Reply::Answer, 200, ""}, ScriptedAnswer{Reply::Close, 200, "x"}}) {
    boxes.shown.clear();
    world.site.Put("downloads/updater.exe", answer);
    program.TheInput().Click(forms.Get<frmBVX>().Label12);
    ASSERT_EQ(boxes.shown.size(), 2U);
    EXPECT_TRUE(boxes.shown[1].text.starts_with("Benevix - Failed to Connect|The server may be"));
    EXPECT_FALSE(world.files.Exists(world.info.folder / "updater.exe"));
  }
  EXPECT_TRUE(world.shell.started.All().empty());
  EXPECT_FALSE(program.TheDesk().Ended());
}

}  // namespace
}  // namespace benevix
