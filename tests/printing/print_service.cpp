#include "print_service.h"

#include <QElapsedTimer>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace benevix {
namespace {

// Comes with cups-filters. Its output is PDF, and its printable area is smaller than the paper.
constexpr auto kPdfPrinter = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd";
const QString kQueue = "paper";

// Daemons are in folders that may be missing from a user's PATH.
QString ProgramPath(const QString& name) {
  const QString found = QStandardPaths::findExecutable(name);
  return found.isEmpty() ? QStandardPaths::findExecutable(name, {"/usr/sbin", "/sbin"}) : found;
}

// The program's standard output; empty when it fails.
std::string Run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(ProgramPath(program), arguments);
  process.waitForFinished();
  return process.exitCode() == 0 ? process.readAllStandardOutput().toStdString() : "";
}

// False after a timeout, which only a service that hangs reaches.
bool WaitUntil(const std::function<bool()>& condition) {
  QElapsedTimer timer;
  timer.start();
  while (!condition()) {
    if (timer.hasExpired(60'000)) return false;
    QThread::msleep(20);
  }
  return true;
}

}  // namespace

PrintService& PrintService::Instance() {
  static PrintService service;
  return service;
}

PrintService::PrintService() {
  for (const char* program : {"cupsd", "lpadmin", "lpstat", "pdftotext"}) {
    if (ProgramPath(program).isEmpty()) missing_ = std::string(program) + " is not installed";
  }
  if (!std::filesystem::exists(kPdfPrinter)) missing_ = "the PDF printer is not installed";
  if (missing_.empty()) Start();
}

PrintService::~PrintService() {
  daemon_.terminate();
  daemon_.waitForFinished();
}

void PrintService::Start() {
  const std::string root = folder_ / "";
  for (const char* name : {"root", "spool", "cache", "state", "temp", "out"}) {
    std::filesystem::create_directory(root + name);
  }
  // The filters may run as another user.
  std::filesystem::permissions(root + "temp", std::filesystem::perms(01777));
  WriteFile(root + "cupsd.conf", "Listen " + root + R"(socket
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)");
  WriteFile(root + "cups-files.conf", "FileDevice Yes\nServerRoot " + root + "root\nRequestRoot " +
                                          root + "spool\nCacheDir " + root + "cache\nStateDir " +
                                          root + "state\nTempDir " + root + "temp\nAccessLog " +
                                          root + "access_log\nErrorLog " + root +
                                          "error_log\nPageLog " + root + "page_log\n");
  qputenv("CUPS_SERVER", (root + "socket").c_str());
  // Ignore the user's own default printer.
  for (const char* name : {"CUPS_SERVERROOT", "HOME"}) qputenv(name, (root + "root").c_str());
  for (const char* name : {"LPDEST", "PRINTER"}) qunsetenv(name);
  daemon_.setProcessChannelMode(QProcess::MergedChannels);
  daemon_.start(ProgramPath("cupsd"), {"-f", "-c", QString::fromStdString(root + "cupsd.conf"),
                                       "-s", QString::fromStdString(root + "cups-files.conf")});
  const bool responds = WaitUntil([this] {
    return daemon_.waitForFinished(0) || daemon_.state() == QProcess::NotRunning ||
           Run("lpstat", {"-r"}).starts_with("scheduler is running");
  });
  if (!responds || daemon_.state() == QProcess::NotRunning) {
    missing_ = "the print service does not start: " + daemon_.readAll().toStdString() +
               ReadFile(root + "error_log");
  }
}

void PrintService::SetPrinter(const std::string& paper) {
  RemovePrinters();
  Run("lpadmin",
      {"-p", kQueue, "-E", "-v", QString::fromStdString("file:" + (folder_ / "out/job.pdf")), "-P",
       kPdfPrinter, "-o", QString::fromStdString("PageSize=" + paper)});
  Run("lpadmin", {"-d", kQueue});
  EXPECT_NE(Run("lpstat", {"-d"}).find(kQueue.toStdString()), std::string::npos);
}

void PrintService::RemovePrinters() {
  Run("lpadmin", {"-x", kQueue});
}

std::string PrintService::Printed(int jobs) {
  const auto count = [](const QString& which) {
    const std::string lines = Run("lpstat", {"-W", which, "-o", kQueue});
    return std::count(lines.begin(), lines.end(), '\n');
  };
  EXPECT_TRUE(WaitUntil([&] { return count("completed") >= jobs; }))
      << ReadFile(folder_ / "error_log");
  EXPECT_EQ(count("completed"), jobs);
  EXPECT_EQ(count("not-completed"), 0);
  return folder_ / "out/job.pdf";
}

}  // namespace benevix
