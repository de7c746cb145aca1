#include "children.h"

#include <QApplication>
#include <algorithm>
#include <iostream>
#include <map>
#include <string>

#include "database/organization_list.h"
#include "database/row_filter.h"
#include "donation_bench.h"
#include "giving_bench.h"
#include "lookup_bench.h"
#include "memory.h"
#include "platform/linux/linux_files.h"
#include "stopwatch.h"

namespace benevix {
namespace {

// Loads the list as the program does at its start, and writes the milliseconds and the bytes of
// memory that it took.
int Load(const std::string& file) {
  const double before = MemoryOf("self").resident;
  const Stopwatch watch;
  const OrganizationList list(*LinuxFiles().Open(FilePath(file)));
  const double elapsed = watch.Milliseconds();
  if (list.Count() < kOrganizations) return 1;
  std::cout << elapsed << ' ' << MemoryOf("self").resident - before << std::endl;
  return 0;
}

// The milliseconds of a search for a word that no organization has.
int Find(const std::string& file) {
  const OrganizationList list(*LinuxFiles().Open(FilePath(file)));
  const Stopwatch watch;
  const OrganizationList::Found found = list.FindText(kNowhere, 1);
  const double elapsed = watch.Milliseconds();
  if (found.beginning != 0 || found.part != 0) return 1;
  std::cout << elapsed << std::endl;
  return 0;
}

// The filter of the list: the first letter, and the slowest of the further ones.
int Filter(const std::string& file) {
  const OrganizationList list(*LinuxFiles().Open(FilePath(file)));
  double first = 0, further = 0;
  for (const std::string word : {"and", "water", "zebra"}) {
    ShownRows before;
    for (std::size_t size = 1; size <= word.size(); ++size) {
      const Stopwatch watch;
      before = RowsWith(list, {word.substr(0, size)}, nullptr);
      double& slowest = size == 1 ? first : further;
      slowest = std::max(slowest, watch.Milliseconds());
    }
  }
  std::cout << first << ' ' << further << std::endl;
  return 0;
}

// The giving report of a program folder.
int TellReport(const std::string& folder) {
  const ReportTimes times = TimeReport(folder);
  std::cout << times.shown << ' ' << times.csv << std::endl;
  return 0;
}

// The filter, until its rows are painted.
int TellShownFilter(const std::string& folder) {
  const FilterTimes times = TimeFilter(folder);
  std::cout << times.first << ' ' << times.further << std::endl;
  return 0;
}

// The favorites.
int TellFavorites(const std::string& folder) {
  const FavoriteTimes times = TimeFavorites(folder, kFavorites);
  std::cout << times.menu << ' ' << times.added << std::endl;
  return 0;
}

// A donation entry, with its step in the journal and without.
int TellDonations(const std::string& folder) {
  const auto entry = [&](Steps steps) { return TimeDonationEntries(folder, kGiven, steps).entry; };
  std::cout << entry(Steps::InFile) << ' ' << entry(Steps::InMemory) << std::endl;
  return 0;
}

}  // namespace

std::optional<int> RunAsChild(int argc, char** argv) {
  if (argc != 3) return std::nullopt;
  static const std::map<std::string, int (*)(const std::string&)> plain = {
      {"--load", Load}, {"--find", Find}, {"--filter", Filter}};
  static const std::map<std::string, int (*)(const std::string&)> windowed = {
      {"--donations", TellDonations},
      {"--report", TellReport},
      {"--favorites", TellFavorites},
      {"--shown-filter", TellShownFilter}};
  if (const auto found = plain.find(argv[1]); found != plain.end()) return found->second(argv[2]);
  const auto found = windowed.find(argv[1]);
  if (found == windowed.end()) return std::nullopt;
  const QApplication app(argc, argv);
  return found->second(argv[2]);
}

}  // namespace benevix
