#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QThread>
#include <QTimer>
#include <csignal>
#include <gtest/gtest.h>

#include "platform/linux/linux_files.h"
#include "platform/linux/program_folder.h"
#include "platform/qt/running_copy.h"
#include "platform/temp_files.h"

namespace benevix {
namespace {

// The program itself, as a user's whose folders are the test's own.
class RunningCopyTest : public testing::Test {
 protected:
  RunningCopyTest() {
    for (const char* folder : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
      qputenv(folder, QByteArray::fromStdString(folder_ / ""));
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_ACTIVATION_TOKEN", "token");
    place_ = {qEnvironmentVariable("XDG_RUNTIME_DIR"),
              QString::fromStdString(ProgramFolder(BENEVIX_PROGRAM))};
  }
  [[nodiscard]] bool IsListening() const {
    const QDir runtime(QString::fromStdString(folder_ / ""));
    const QStringList meeting = runtime.entryList({"benevix-*"});
    return meeting.size() == 1 && QFileInfo::exists(runtime.filePath(meeting[0] + "/socket"));
  }

  TempFolder folder_;
  LinuxFiles files_;
  MeetingPlace place_;
};

TEST_F(RunningCopyTest, ASecondStartEndsAndOneThatIsDeadOrHangsBlocksNothing) {
  QProcess first, second;
  QElapsedTimer watch;
  first.start(BENEVIX_PROGRAM, QStringList());
  for (watch.start(); !IsListening() && watch.elapsed() < 20'000;) QThread::msleep(10);
  EXPECT_TRUE(RunningCopy(files_, place_, "").IsSecond());
  EXPECT_FALSE(RunningCopy(files_, {place_.runtimeFolder, "another"}, "").IsSecond());
  const auto process = static_cast<pid_t>(first.processId());
  kill(process, SIGSTOP);
  watch.start();
  EXPECT_FALSE(RunningCopy(files_, place_, "").IsSecond());
  EXPECT_LT(watch.elapsed(), 3000);
  kill(process, SIGKILL);
  first.waitForFinished();

  RunningCopy copy(files_, place_, "");
  QEventLoop loop;
  QByteArray told;
  copy.onSecondStart = [&](const QByteArray& token) { told = token; };
  QObject::connect(&second, &QProcess::finished, &loop, &QEventLoop::quit);
  second.start(BENEVIX_PROGRAM, QStringList());
  QTimer::singleShot(20'000, &loop, &QEventLoop::quit);
  loop.exec();
  EXPECT_EQ(second.state(), QProcess::NotRunning);
  EXPECT_EQ(second.exitCode(), 0);
  EXPECT_EQ(told, "token");

  EXPECT_FALSE(RunningCopy(files_, {{}, place_.programFolder}, "").IsSecond());
}

}  // namespace
}  // namespace benevix
