// The program benevix-play.

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <string>

namespace {

// Exit code and what was printed.
using Played = std::pair<int, std::string>;

class Player : public testing::Test {
 protected:
  void Put(const QString& name, const std::string& script) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(script.data(), static_cast<qint64>(script.size()));
  }

  Played Play(const QStringList& files) {
    QProcess process;
    process.setWorkingDirectory(folder_.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(BENEVIX_PLAY, files);
    EXPECT_TRUE(process.waitForFinished(-1));
    return {process.exitCode(), process.readAll().toStdString()};
  }

  Played PlayText(const std::string& script) {
    Put("a.play", script);
    return Play({"a.play"});
  }

 private:
  QTemporaryDir folder_;
};

TEST_F(Player, NamesTheLineThatCannotBeReadAndPlaysNothingOfTheScript) {
  for (const std::string line :
       {"foo", "click", "expect a.b c d", "expect a \"b", "expect a \"b\"c", "expect a \"\\q\"",
        "expect a \"\\x4\"", "expect a \xE2\x86\x92", "expect a \xFF", "random 1",
        "time \"2003-02-30 10:00:00\"", "select a.b two", "press a.b Return", "answer Maybe",
        "stored machines a b", "file a\ntext"}) {
    const auto [exitCode, printed] = PlayText("# \xE2\x86\x92\nexists nothing\n" + line);
    EXPECT_EQ(exitCode, 2) << line;
    EXPECT_TRUE(printed.starts_with("a.play:")) << printed;
    EXPECT_EQ(printed.find("a.play:2:"), std::string::npos) << line;
    EXPECT_TRUE(printed.ends_with("\n0 passed, 0 failed\n")) << line;
  }
}

TEST_F(Player, CountsEveryLineThatFailsAndGoesOn) {
  const auto [exitCode, printed] = PlayText(
      "expect frmBVX.Caption BENEVIX\n"         // no program yet
      "start\n"                                 // not counted
      "expect frmBVX.Caption BENEVIX\n"         // passes: as designed
      "expect frmBVX.Caption \"B\\r\\n\"\n"     // another text
      "expect frmBVX.Text1(3).Text x\n"         // no such element
      "expect frmBVX.lclist(9).Exists False\n"  // may be asked all the same
      "expect frmBVX.lclist(9).Caption x\n"
      "click frmBVX.mnuNew\n"  // not shown
      "message\n"
      "no-message\n"  // passes
      "call Val 1 = error\n"
      "call Codec 1 9 1 = error\n"  // passes
      "ended\n");
  EXPECT_EQ(exitCode, 1);
  EXPECT_NE(printed.find("a.play:4: expected frmBVX.Caption \"B\\r\\n\" got \"BENEVIX\"\n"),
            std::string::npos);
  EXPECT_TRUE(printed.ends_with("\na.play: 4 passed, 8 failed\n4 passed, 8 failed\n")) << printed;
}

TEST_F(Player, PlaysEveryFileAndGivesTheWorstExitCode) {
  Put("good.play", "call Val 5x = 5\r\n");
  Put("bad.play", "call Val 5x = 6\n");
  Put("unreadable.play", "call\n");
  const auto [exitCode, printed] =
      Play({"good.play", "bad.play", "unreadable.play", "none.play", "good.play"});
  EXPECT_EQ(exitCode, 2);
  EXPECT_NE(printed.find("none.play: "), std::string::npos) << printed;
  EXPECT_TRUE(printed.ends_with("good.play: 1 passed, 0 failed\n2 passed, 1 failed\n")) << printed;
  EXPECT_EQ(Play({"good.play"}).first, 0);
  EXPECT_EQ(Play({}).first, 2);
}

TEST_F(Player, TextsStandAsTheScriptSays) {
  const auto [exitCode, printed] = PlayText(R"(
file a\b.txt
# no comment here, {folder} is filled in
  "as it stands"
.
holds a/b.txt "# no comment here, {folder} is filled in\r\n  \"as it stands\"\r\n"
bytes "c d" "\x80\\é" # the euro sign
holds "c d" "€\\\xE9"
remove "c d"
missing "c d"
setting favorites "" 2
stored favorites "" 2
setting favorites ""
absent favorites ""
readonly machine
setting machine Proxy x
stored machine Proxy x
)");
  EXPECT_EQ(printed, "a.play: 6 passed, 0 failed\n6 passed, 0 failed\n");
  EXPECT_EQ(exitCode, 0);
}

}  // namespace
