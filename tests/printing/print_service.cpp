#include "print_service.h"

#include <QElapsedTimer>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace benevix {
namespace {

// Stands in every CUPS; its jobs leave it as PDF, and it cannot print up to the paper's edge.
constexpr auto kPdfPrinter = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd";
const QString kQueue = "paper";

// Daemons stand in folders that only the administrator's path names.
QString ProgramPath(const QString& name) {
  const QString found = QStandardPaths::findExecutable(name);
  return found.isEmpty() ? QStandardPaths::findExecutable(name, {"/usr/sbin", "/sbin"}) : found;
}

std::string Run(const QString& program, const QStringList& arguments, int* result = nullptr) {
  QProcess process;
  process.start(ProgramPath(program), arguments);
  process.waitForFinished();
  if (result != nullptr) *result = process.exitCode();
  return process.readAllStandardOutput().toStdString();
}

// Gives false when it does not come true; the time only bounds a service that hangs.
bool WaitUntil(const std::function<bool()>& condition) {
  QElapsedTimer waiting;
  waiting.start();
  while (!condition()) {
    if (waiting.hasExpired(60'000)) return false;
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

void PrintService::WriteConfiguration() const {
  namespace fs = std::filesystem;
  for (const char* name : {"root", "spool", "cache", "state", "temp", "out"}) {
    fs::create_directory(folder_ / name);
  }
  fs::permissions(folder_ / "temp", fs::perms(01777));  // the filters may run as another user
  Put(folder_ / "cupsd.conf", "Listen " + (folder_ / "socket") +
                                  "\nBrowsing Off\n"
                                  "WebInterface No\n"
                                  "DefaultAuthType None\n"
                                  "<Location />\n"
                                  "  Order allow,deny\n"
                                  "  Allow all\n"
                                  "</Location>\n"
                                  "<Policy default>\n"
                                  "  <Limit All>\n"
                                  "    Order deny,allow\n"
                                  "  </Limit>\n"
                                  "</Policy>\n");
  Put(folder_ / "cups-files.conf",
      "FileDevice Yes\n"
      "ServerRoot " +
          (folder_ / "root") + "\nRequestRoot " + (folder_ / "spool") + "\nCacheDir " +
          (folder_ / "cache") + "\nStateDir " + (folder_ / "state") + "\nTempDir " +
          (folder_ / "temp") + "\nAccessLog " + (folder_ / "access_log") + "\nErrorLog " +
          (folder_ / "error_log") + "\nPageLog " + (folder_ / "page_log") + "\n");
}

void PrintService::Start() {
  WriteConfiguration();
  qputenv("CUPS_SERVER", (folder_ / "socket").c_str());
  // A default printer of the user's own is none of the test's business.
  qputenv("CUPS_SERVERROOT", (folder_ / "root").c_str());
  qputenv("HOME", (folder_ / "root").c_str());
  qunsetenv("LPDEST");
  qunsetenv("PRINTER");
  daemon_.setProcessChannelMode(QProcess::MergedChannels);
  daemon_.start(ProgramPath("cupsd"), {"-f", "-c", QString::fromStdString(folder_ / "cupsd.conf"),
                                       "-s", QString::fromStdString(folder_ / "cups-files.conf")});
  const bool answers = WaitUntil([this] {
    if (daemon_.waitForFinished(0) || daemon_.state() == QProcess::NotRunning) return true;
    int result = 1;
    return Run("lpstat", {"-r"}, &result).find("scheduler is running") == 0 && result == 0;
  });
  if (!answers || daemon_.state() == QProcess::NotRunning) {
    missing_ = "the print service does not start: " + daemon_.readAll().toStdString() + ErrorLog();
  }
}

void PrintService::SetPrinter(const std::string& paper) {
  RemovePrinters();
  int result = 1;
  Run("lpadmin",
      {"-p", kQueue, "-E", "-v", QString::fromStdString("file:" + (folder_ / "out/job.pdf")), "-P",
       kPdfPrinter, "-o", QString::fromStdString("PageSize=" + paper)},
      &result);
  EXPECT_EQ(result, 0);
  Run("lpadmin", {"-d", kQueue}, &result);
  EXPECT_EQ(result, 0);
}

void PrintService::RemovePrinters() {
  Run("lpadmin", {"-x", kQueue});
}

std::string PrintService::Queue() const {
  return Run("lpstat", {"-l", "-W", "all", "-o", kQueue});
}

std::string PrintService::Printed(int jobs) {
  const auto count = [](const QString& which) {
    const std::string lines = Run("lpstat", {"-W", which, "-o", kQueue});
    return std::count(lines.begin(), lines.end(), '\n');
  };
  EXPECT_TRUE(WaitUntil([&] { return count("completed") >= jobs; })) << Queue() << ErrorLog();
  EXPECT_EQ(count("completed"), jobs);
  EXPECT_EQ(count("not-completed"), 0);
  return folder_ / "out/job.pdf";
}

}  // namespace benevix
