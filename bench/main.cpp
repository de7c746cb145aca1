// Measures what users wait for, next to reference programs measured in the same run.

#include <QApplication>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "child.h"
#include "database/organization_list.h"
#include "donation_bench.h"
#include "folder.h"
#include "make_list.h"
#include "memory.h"
#include "platform/linux/linux_files.h"
#include "stopwatch.h"

namespace {

using namespace benevix;
namespace fs = std::filesystem;

constexpr int kOrganizations = 2'000'000;
constexpr int kCountries = 250;
constexpr int kGiven = 1000;
constexpr int kGivenInBoth = 400;  // the shipped list has hardly more organizations
constexpr int kRuns = 9;
constexpr double kMegabyte = 1e6;

// "--load FILE": loads the list in a new process, as the program does at its start, and writes the
// milliseconds and the bytes of memory that it took.
int Load(const std::string& file) {
  const double before = MemoryOf("self").resident;
  const Stopwatch watch;
  const OrganizationList list(*LinuxFiles().Open(FilePath(file)));
  const double elapsed = watch.Milliseconds();
  if (list.Count() < kOrganizations) return 1;
  std::cout << elapsed << ' ' << MemoryOf("self").resident - before << std::endl;
  return 0;
}

void Title(const char* text) {
  std::printf("\n%s\n", text);
}

void Line(const std::string& what, double value, const char* unit) {
  std::printf("  %-46s %10.3f %s\n", what.c_str(), value, unit);
}

void Ratio(const std::string& what, double ratio, double aim) {
  std::printf("  %-46s %10.2f x   (aim: at most %.1f, %s)\n", what.c_str(), ratio, aim,
              ratio <= aim ? "met" : "missed");
}

void BenchLoad(const std::string& self, const std::string& list) {
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
  Title("Loading the list");
  Line("the file", size / kMegabyte, "MB");
  Line("load, each time in a new process", Median(loads), "ms");
  Line("wc -l", Median(counts), "ms");
  Line("LC_ALL=C grep -c ,", Median(searches), "ms");
  Ratio("load / wc -l", Median(loads) / Median(counts), 2);
  Line("memory that the load takes", Median(growths) / kMegabyte, "MB");
  Ratio("memory that the load takes / file", Median(growths) / size, 1.6);
}

void BenchDonations(const fs::path& shipped, const fs::path& big) {
  const DonationTimes few = TimeDonationEntries(shipped.string(), kGivenInBoth);
  const DonationTimes many = TimeDonationEntries(big.string(), kGivenInBoth);
  const DonationTimes full = TimeDonationEntries(big.string(), kGiven);
  Title("One donation entry");
  for (const DonationTimes& times : {few, many, full}) {
    Line(std::to_string(times.rows) + " rows, " + std::to_string(times.given) + " donations given",
         times.entry, "ms");
  }
  Ratio("1000 donations given / 1 ms", full.entry, 1);
  Ratio("long list / shipped list", many.entry / few.entry, 1.2);
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

void BenchStart(const fs::path& programs, const fs::path& shipped, const fs::path& big,
                double fileSize) {
  Starts minimal;
  Starts few;
  Starts many;
  for (int run = 0; run < kRuns; ++run) {
    minimal.Run({(programs / "bench-minimal").string()});
    few.Run({(programs / "bench-start").string(), shipped.string()});
    many.Run({(programs / "bench-start").string(), big.string()});
  }
  Title("From the start of the process to the main window shown");
  Line("minimal Qt program", Median(minimal.times), "ms");
  Line("benevix, shipped list", Median(few.times), "ms");
  Line("benevix, long list", Median(many.times), "ms");
  Ratio("shipped list / minimal program", Median(few.times) / Median(minimal.times), 2);
  Ratio("long list / minimal program", Median(many.times) / Median(minimal.times), 2);
  Title("Memory with the main window shown");
  Line("minimal program", Median(minimal.resident) / kMegabyte, "MB");
  Line("benevix, shipped list", Median(few.resident) / kMegabyte, "MB");
  Line("benevix, long list", Median(many.resident) / kMegabyte, "MB");
  Ratio("long list / file", Median(many.resident) / fileSize, 1.6);
  Ratio("long list, libraries shared / file", Median(many.proportional) / fileSize, 1.6);
}

int Bench(const std::string& self, const fs::path& resources) {
  const ScratchFolder scratch;
  const fs::path list = scratch.Path() / "list.dat";
  const fs::path shipped = scratch.Path() / "shipped";
  const fs::path big = scratch.Path() / "big";
  std::printf("%d organizations in %d countries\n", kOrganizations, kCountries);
  MakeList(list, kOrganizations, kCountries);
  MakeProgramFolder(shipped, resources / "sharedb.dat", resources);
  MakeProgramFolder(big, list, resources);
  BenchLoad(self, list.string());
  BenchDonations(shipped, big);
  BenchStart(fs::path(self).parent_path(), shipped, big, static_cast<double>(fs::file_size(list)));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (argc == 3 && std::string(argv[1]) == "--load") return Load(argv[2]);
    // Offscreen, so that results of different machines can be compared.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false");
    const QApplication app(argc, argv);
    return Bench(QCoreApplication::applicationFilePath().toStdString(), RESOURCES_FOLDER);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "benevix-bench: %s\n", error.what());
    return 1;
  }
}
