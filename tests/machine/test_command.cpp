// The program's commands, run as a user does, without a display.

#include <QProcess>
#include <filesystem>
#include <gtest/gtest.h>

#include "platform/temp_files.h"

namespace benevix {
namespace {

class CommandTest : public testing::Test {
 protected:
  CommandTest() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* folder : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
      environment.insert(folder, QString::fromStdString(folder_ / ""));
    }
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
      environment.remove(display);
    }
    program_.setProcessEnvironment(environment);
    // An installation that stands in a folder of its own.
    std::filesystem::create_directory(folder_ / "Resources");
    std::filesystem::copy_file(BENEVIX_PROGRAM, folder_ / "benevix");
    std::filesystem::copy_file(RESOURCES_FOLDER "/deployment.ini", folder_ / "deployment.ini");
    program_.setWorkingDirectory(QString::fromStdString(folder_ / ""));
  }

  int Run(const QStringList& arguments) {
    program_.start(QString::fromStdString(folder_ / "benevix"), arguments);
    program_.waitForFinished();
    error_ = program_.readAllStandardError().toStdString();
    return program_.exitCode();
  }

  TempFolder folder_;
  QProcess program_;
  std::string error_;
};

TEST_F(CommandTest, GiftsAreWrittenWithoutAWindow) {
  const std::string table = folder_ / "gifts.csv";
  EXPECT_EQ(Run({"--export", "gifts.csv"}), 1);
  EXPECT_NE(error_.find("There is no donation history yet"), std::string::npos);
  std::string history;
  for (const char* year : {"2003", "2004"}) {
    history += "-- 03-05-" + std::string(year) +
               " @ 12:34\r\n             Transaction ID: " + year + "C - Budget: $50\r\n" +
               "             Organization: Water \xC9 -  Amount: $50.25 -  From: Ann -  Method: "
               "Pool\r\n             Payment: $50.25 - BVX Fee: $ . - CC Fee: $.\r\n\r\n";
  }
  WriteFile(folder_ / "Resources/history.dat", history);
  EXPECT_EQ(Run({"--export", "gifts.csv", "--from", "2003-03-06", "--to", "2004-12-31"}), 0)
      << error_;
  EXPECT_NE(ReadFile(table).find("2004-03-05,12:34,\"2004C\",\"Water \xC3\x89\",50.25"),
            std::string::npos);
  EXPECT_EQ(ReadFile(table).find("2003C"), std::string::npos);
  EXPECT_EQ(Run({"--statement", QString::fromStdString(folder_ / "2003.pdf")}), 0) << error_;
  EXPECT_EQ(ReadFile(folder_ / "2003.pdf").substr(0, 5), "%PDF-");
  EXPECT_EQ(Run({"--statement", "missing/2003.pdf"}), 1);
  EXPECT_NE(error_.find("missing/2003.pdf"), std::string::npos);
  for (const QStringList& wrong : {QStringList{"--export"},
                                   {"--nothing"},
                                   {"gifts.csv"},
                                   {"--export", "x", "--from", "03-05-2003"}}) {
    EXPECT_EQ(Run(wrong), 2);
    EXPECT_NE(error_, "");
  }
  EXPECT_EQ(Run({"--help"}), 0);
  EXPECT_TRUE(program_.readAllStandardOutput().contains("--statement"));
}

}  // namespace
}  // namespace benevix
