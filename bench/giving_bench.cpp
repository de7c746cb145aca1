#include "giving_bench.h"

#include <QApplication>
#include <QThread>
#include <array>
#include <cstdio>
#include <fstream>
#include <random>
#include <stdexcept>

#include "benevix/machine.h"
#include "mirror/look/theme.h"
#include "mirror/mirror/mirror.h"
#include "program/program.h"
#include "quiet.h"
#include "stopwatch.h"

namespace benevix {
namespace {

// Saves where it is told, and is asked nothing else.
class GivenFile : public NoBoxes {
 public:
  explicit GivenFile(std::string file) : file_(std::move(file)) {}
  FilePath AskWhereToSave(const std::string& /*title*/, const std::string& /*name*/) override {
    return FilePath(file_);
  }

 private:
  std::string file_;
};

}  // namespace

void MakeHistory(const std::filesystem::path& file, int sessions) {
  constexpr std::array names = {"Harbour Hands Trust", "Open Fields Fund of the Winter District",
                                "Green Water Society", "Silver Books Relief"};
  constexpr int gifts = 10, years = 20;
  std::ofstream out(file, std::ios::binary);
  std::mt19937 random(1);
  const auto upTo = [&](unsigned most) { return static_cast<int>(random() % (most + 1)); };
  std::array<char, 256> line{};
  for (int session = 0; session < sessions; ++session) {
    // In the order of time, as a history is.
    const int days = static_cast<int>(std::int64_t{session} * years * 336 / sessions);
    const int year = 2000 + days / 336, month = 1 + days % 336 / 28, day = 1 + days % 28;
    std::snprintf(line.data(), line.size(),
                  "-- %02d-%02d-%04d @ %02d:%02d\r\n             Transaction ID: "
                  "%d.%02d-%d-%d%d%dC - Budget: $500\r\n",
                  month, day, year, 12, 0, upTo(86399), upTo(99), upTo(999999), year, month, day);
    out << line.data();
    for (int gift = 0; gift < gifts; ++gift) {
      std::snprintf(line.data(), line.size(),
                    "             Organization: %s %d -  Amount: $%d.%02d -  From: Ann Lee -  "
                    "Method: Pool%s\r\n",
                    names[random() % names.size()], upTo(499), upTo(89), upTo(99),
                    upTo(7) == 0 ? " - Tax Certificate: [X]" : "");
      out << line.data();
    }
    out << "             Payment: $512.40 - BVX Fee: $ 12. - CC Fee: $.4\r\n\r\n";
  }
  if (!out.flush()) throw std::runtime_error(file.string() + ": cannot be written");
}

ReportTimes TimeReport(const std::string& folder) {
  const Scheme scheme = DesktopScheme();
  ApplyTheme(*qApp, scheme);
  Mirror mirror(scheme, Mirror::Timers::Hold);
  GivenFile boxes(folder + "/gifts.csv");
  Machine machine(folder + "/benevix", mirror, boxes);
  Program program(machine.TheEnvironment());
  mirror.Attach(program.TheDesk(), program.TheInput());
  program.Main();
  Input& input = program.TheInput();
  input.Click(program.TheForms().Get<frmSplash>().Image2[0]);
  QApplication::processEvents();
  // By the time that a user has opened the menu the card's index is there.
  QThread::sleep(1);

  frmReport& report = program.TheForms().Get<frmReport>();
  ReportTimes times;
  const Stopwatch watch;
  input.ChooseMenu(program.TheForms().Get<frmBVX>().mnuReport);
  input.Choose(report.Option1[report_range::kAll]);
  QApplication::processEvents();
  times.shown = watch.Milliseconds();
  const Stopwatch csv;
  input.Click(report.Command1[report_button::kCsv]);
  times.csv = csv.Milliseconds();
  if (!report.Told.caption.starts_with("Saved")) throw std::runtime_error("no table was written");
  mirror.Detach();
  return times;
}

}  // namespace benevix
