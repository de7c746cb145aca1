// Measures what users wait for, next to reference programs measured in the same run.

#include <QApplication>
#include <QStandardPaths>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "child.h"
#include "children.h"
#include "donation_bench.h"
#include "folder.h"
#include "giving_bench.h"
#include "lookup_bench.h"
#include "make_list.h"
#include "memory.h"
#include "report.h"
#include "stopwatch.h"

namespace {

using namespace benevix;
namespace fs = std::filesystem;

constexpr int kCountries = 250;
constexpr int kGivenInBoth = 400;   // the shipped list has hardly more organizations
constexpr int kSessions = 100'000;  // of the history, with ten gifts each
constexpr int kRuns = 9;
constexpr int kNothingFound = 1;  // the exit status of the search programs
constexpr double kMegabyte = 1e6;

void BenchLoad(Report& report, const std::string& self, const std::string& list) {
  std::vector<double> loads;
  std::vector<double> counts;
  std::vector<double> searches;
  std::vector<double> growths;
  setenv("LC_ALL", "C", 1);
  for (int run = 0; run < kRuns; ++run) {
    const ReadyChild load({self, "--load", list});
    std::size_t end = 0;
    loads.push_back(std::stod(load.Line(), &end));
    growths.push_back(std::stod(load.Line().substr(end)));
    counts.push_back(TimeToEnd({"wc", "-l", list}));
    searches.push_back(TimeToEnd({"grep", "-c", ",", list}));
  }
  unsetenv("LC_ALL");
  const auto size = static_cast<double>(fs::file_size(list));
  report.Title("Loading the list");
  report.Line("the file", size / kMegabyte, "MB");
  report.Line("load, each time in a new process", Median(loads), "ms");
  report.Line("wc -l", Median(counts), "ms");
  report.Line("LC_ALL=C grep -c ,", Median(searches), "ms");
  report.Ratio("load / wc -l", Median(loads) / Median(counts), 1.5);
  report.Line("memory that the load takes", Median(growths) / kMegabyte, "MB");
  report.Ratio("memory that the load takes / file", Median(growths) / size, 1.1);
}

void BenchDonations(Report& report, const fs::path& shipped, const fs::path& big) {
  const DonationTimes few = TimeDonationEntries(shipped.string(), kGivenInBoth, Steps::InFile);
  const DonationTimes many = TimeDonationEntries(big.string(), kGivenInBoth, Steps::InFile);
  const DonationTimes full = TimeDonationEntries(big.string(), kGiven, Steps::InFile);
  const DonationTimes entry = TimeDonationEntries(big.string(), kGiven, Steps::InMemory);
  report.Title("One donation entry, with its step in the journal");
  for (const DonationTimes& times : {few, many, full}) {
    report.Line(
        std::to_string(times.rows) + " rows, " + std::to_string(times.given) + " donations given",
        times.entry, "ms");
  }
  report.Line("of it the entry itself", entry.entry, "ms");
  report.Line("and writing its step to the disk", full.entry - entry.entry, "ms");
  constexpr double limit = 0.1;  // milliseconds
  report.Ratio("1000 donations given / 0.1 ms", full.entry / limit, 1);
  report.Ratio("the entry itself / 0.1 ms", entry.entry / limit, 1);
  report.Ratio("long list / shipped list", many.entry / few.entry, 1.2);
  report.Ratio("1000 / 400 donations given", full.entry / many.entry, 1.2);
}

void BenchFind(Report& report, const std::string& self, const std::string& list) {
  const bool hasRg = !QStandardPaths::findExecutable("rg").isEmpty();
  const Command yardstick =
      hasRg ? Command{"rg", "-ic", kNowhere, list} : Command{"grep", "-ic", kNowhere, list};
  std::vector<double> finds;
  std::vector<double> counts;
  setenv("LC_ALL", "C", 1);
  for (int run = 0; run < kRuns; ++run) {
    finds.push_back(std::stod(ReadyChild({self, "--find", list}).Line()));
    counts.push_back(TimeToEnd(yardstick, kNothingFound));
  }
  unsetenv("LC_ALL");
  const std::string name = hasRg ? "rg -ic" : "LC_ALL=C grep -ic";
  report.Title("Find, nothing found");
  report.Line("find", Median(finds), "ms");
  report.Line(name, Median(counts), "ms");
  report.Ratio("find / " + name, Median(finds) / Median(counts), hasRg ? 1 : 0.5);
}

// Two numbers that a child writes.
struct Two {
  explicit Two(const Command& command) {
    const ReadyChild child(command);
    std::size_t end = 0;
    first = std::stod(child.Line(), &end);
    second = std::stod(child.Line().substr(end));
  }
  double first = 0, second = 0;
};

void BenchFilter(Report& report, const Command& child, const std::string& what) {
  std::vector<double> first;
  std::vector<double> further;
  for (int run = 0; run < kRuns; ++run) {
    const Two times(child);
    first.push_back(times.first);
    further.push_back(times.second);
  }
  report.Title("Filter as you type, " + what);
  report.Line("first letter", Median(first), "ms");
  report.Line("each further letter", Median(further), "ms");
  report.Ratio("first letter / 50 ms", Median(first) / 50, 1);
  report.Ratio("further letter / 16 ms", Median(further) / 16, 1);
}

void BenchLookups(Report& report, const std::string& self, const fs::path& folder) {
  const fs::path table = folder / "Resources" / "ytd.dat";
  MakeTable(table, kOrganizations);
  const TableTimes amounts = TimeYearToDate(folder.string(), kOrganizations);
  const double count = TimeToEnd({"wc", "-l", table.string()});
  report.Title("Year-to-date amounts of a row, " + std::to_string(kOrganizations) + " records");
  report.Line("the table", static_cast<double>(fs::file_size(table)) / kMegabyte, "MB");
  report.Line("indexed, once", amounts.indexed, "ms");
  report.Line("a row's amounts", amounts.row, "ms");
  report.Line("wc -l", count, "ms");
  report.Line("indexed / wc -l", amounts.indexed / count, "x");
  report.Ratio("a row's amounts / 20 ms", amounts.row / 20, 1);
  fs::remove(table);

  std::vector<double> menus;
  std::vector<double> added;
  for (int run = 0; run < kRuns; ++run) {
    const Two times({self, "--favorites", folder.string()});
    menus.push_back(times.first);
    added.push_back(times.second);
  }
  report.Title(std::to_string(kFavorites) + " favorites, one of them not in the list");
  report.Line("their menu built", Median(menus), "ms");
  report.Line("one more added and written", Median(added), "ms");
  report.Ratio("their menu built / 50 ms", Median(menus) / 50, 1);
}

void BenchGiving(Report& report, const std::string& self, const fs::path& folder) {
  const fs::path history = folder / "Resources" / "history.dat";
  MakeHistory(history, kSessions);
  std::vector<double> shown;
  std::vector<double> written;
  std::vector<double> counts;
  std::vector<double> without;
  std::vector<double> with;
  const std::string start = (fs::path(self).parent_path() / "bench-start").string();
  for (int run = 0; run < kRuns; ++run) {
    const Two times({self, "--report", folder.string()});
    shown.push_back(times.first);
    written.push_back(times.second);
    counts.push_back(TimeToEnd({"wc", "-l", history.string()}));
    with.push_back(ReadyChild({start, folder.string()}).Elapsed());
    fs::rename(history, folder / "history");
    without.push_back(ReadyChild({start, folder.string()}).Elapsed());
    fs::rename(folder / "history", history);
  }
  report.Title("What was given: 100,000 sessions, 1,000,000 gifts");
  report.Line("the history", static_cast<double>(fs::file_size(history)) / kMegabyte, "MB");
  report.Line("report shown", Median(shown), "ms");
  report.Line("CSV written", Median(written), "ms");
  report.Line("wc -l", Median(counts), "ms");
  report.Ratio("report shown / wc -l", Median(shown) / Median(counts), 6);
  report.Line("CSV written / wc -l", Median(written) / Median(counts), "x");
  report.Line("main window shown, with it", Median(with), "ms");
  report.Line("main window shown, without", Median(without), "ms");
  report.Ratio("what it costs at start / 100 ms", (Median(with) - Median(without)) / 100, 1);
}

struct Starts {
  std::vector<double> times;
  std::vector<double> resident;
  std::vector<double> proportional;

  void Run(const Command& command) {
    const ReadyChild child(command);
    const Memory memory = MemoryOf(std::to_string(child.Process()));
    times.push_back(child.Elapsed());
    resident.push_back(memory.resident);
    proportional.push_back(memory.proportional);
  }
};

void BenchStart(Report& report, const fs::path& programs, const fs::path& shipped,
                const fs::path& big, double fileSize) {
  Starts minimal;
  Starts few;
  Starts many;
  for (int run = 0; run < kRuns; ++run) {
    minimal.Run({(programs / "bench-minimal").string()});
    few.Run({(programs / "bench-start").string(), shipped.string()});
    many.Run({(programs / "bench-start").string(), big.string()});
  }
  report.Title("From the start of the process to the main window shown");
  report.Line("minimal Qt program", Median(minimal.times), "ms");
  report.Line("benevix, shipped list", Median(few.times), "ms");
  report.Line("benevix, long list", Median(many.times), "ms");
  report.Ratio("shipped list / minimal program", Median(few.times) / Median(minimal.times), 1.5);
  report.Ratio("long list / minimal program", Median(many.times) / Median(minimal.times), 2.2);
  report.Title("Memory with the main window shown");
  report.Line("minimal program", Median(minimal.resident) / kMegabyte, "MB");
  report.Line("benevix, shipped list", Median(few.resident) / kMegabyte, "MB");
  report.Line("benevix, long list", Median(many.resident) / kMegabyte, "MB");
  report.Ratio("shipped list / minimal program", Median(few.resident) / Median(minimal.resident),
               1.3);
  report.Ratio("long list / file", Median(many.resident) / fileSize, 1.6);
  report.Ratio("long list, libraries shared / file", Median(many.proportional) / fileSize, 1.6);
}

Report Bench(const std::string& self, const fs::path& resources) {
  Report report;
  const ScratchFolder scratch;
  const fs::path list = scratch.Path() / "list.dat";
  const fs::path shipped = scratch.Path() / "shipped";
  const fs::path big = scratch.Path() / "big";
  std::printf("%d organizations in %d countries\n", kOrganizations, kCountries);
  MakeList(list, kOrganizations, kCountries);
  MakeProgramFolder(shipped, resources / "sharedb.dat", resources);
  MakeProgramFolder(big, list, resources);
  BenchLoad(report, self, list.string());
  BenchFind(report, self, list.string());
  BenchFilter(report, {self, "--filter", list.string()}, "the rows found");
  BenchFilter(report, {self, "--shown-filter", big.string()}, "the rows painted");
  BenchDonations(report, shipped, big);
  BenchLookups(report, self, big);
  BenchStart(report, fs::path(self).parent_path(), shipped, big,
             static_cast<double>(fs::file_size(list)));
  BenchGiving(report, self, shipped);
  return report;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (const auto status = RunAsChild(argc, argv)) return *status;
    const bool json = argc == 3 && std::string(argv[1]) == "--json";
    if (argc != 1 && !json) throw std::runtime_error("usage: benevix-bench [--json FILE]");
    // Offscreen, so that results of different machines can be compared.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false");
    const QApplication app(argc, argv);
    const Report report =
        Bench(QCoreApplication::applicationFilePath().toStdString(), RESOURCES_FOLDER);
    if (json) report.WriteJson(argv[2]);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "benevix-bench: %s\n", error.what());
    return 1;
  }
}
