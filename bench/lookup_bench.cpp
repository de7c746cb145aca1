#include "lookup_bench.h"

#include <QApplication>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "benevix/machine.h"
#include "mirror/look/theme.h"
#include "mirror/mirror/mirror.h"
#include "program/program.h"
#include "quiet.h"
#include "stopwatch.h"

namespace benevix {
namespace {

constexpr int kRuns = 101;

// So that neighbours in the list stand far apart: each number below `count` once.
int Scattered(int i, int count) {
  constexpr std::int64_t step = 7'919;  // a prime
  return static_cast<int>(i * step % count);
}

}  // namespace

void MakeTable(const std::filesystem::path& file, int organizations) {
  std::ofstream out(file, std::ios::binary);
  for (int i = 0; i < organizations; ++i) {
    const int id = Scattered(i, organizations) + 1;
    out << id << ",," << id % 90 << ".5," << id % 900 << ',' << id % 9000 << '\n';
  }
  if (!out.flush()) throw std::runtime_error(file.string() + ": cannot be written");
}

TableTimes TimeYearToDate(const std::string& folder, int organizations) {
  NoWaits waits;
  NoBoxes boxes;
  Machine machine(folder + "/benevix", waits, boxes);
  Environment environment = machine.TheEnvironment();
  frmBVX main;
  frmYtdTag window;
  RunValues run{.YtdState = 1, .HoldsFolder = true};
  FeeRates rates;
  const EventTable events;
  Desk desk(events);
  ServerFiles server(environment, main, rates, run);
  YearToDate amounts(environment, server, run, main, window, desk);
  const FilePath list = environment.info.Resource("sharedb.dat");
  main.ListView1.SetRows(std::make_shared<OrganizationList>(*environment.files.Open(list)));

  std::vector<double> times;
  for (int i = 0; i <= kRuns; ++i) {
    main.ListView1.selected = 2 + Scattered(i, organizations);
    const bool organization = main.ListView1.Text(main.ListView1.selected).empty();
    const Stopwatch watch;
    amounts.ShowYtd();
    times.push_back(watch.Milliseconds());
    if (organization != (main.Shape2.fillColor == colors::kGreen)) {
      throw std::runtime_error("amounts were not found");
    }
  }
  return {times.front(), Median({times.begin() + 1, times.end()})};
}

namespace {

// The program with its main window shown.
class Shown {
 public:
  explicit Shown(const std::string& folder)
      : scheme_(DesktopScheme()),
        mirror_(scheme_, Mirror::Timers::Hold),
        machine_(folder + "/benevix", mirror_, boxes_),
        environment_(machine_.TheEnvironment()),
        program_(environment_) {
    ApplyTheme(*qApp, scheme_);
    mirror_.Attach(program_.TheDesk(), program_.TheInput());
    program_.Main();
    TheInput().Click(program_.TheForms().Get<frmSplash>().Image2[0]);
    QApplication::processEvents();
  }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;
  ~Shown() { mirror_.Detach(); }

  [[nodiscard]] Environment& TheEnvironment() { return environment_; }
  [[nodiscard]] Program& TheProgram() { return program_; }
  [[nodiscard]] frmBVX& Main() { return program_.TheForms().Get<frmBVX>(); }
  [[nodiscard]] Input& TheInput() { return program_.TheInput(); }

 private:
  Scheme scheme_;
  Mirror mirror_;
  NoBoxes boxes_;
  Machine machine_;
  Environment environment_;
  Program program_;
};

}  // namespace

FilterTimes TimeFilter(const std::string& folder) {
  Shown shown(folder);
  FilterTimes times;
  for (const std::string word : {"and", "water", "zebra"}) {
    for (std::size_t size = 1; size <= word.size(); ++size) {
      const Stopwatch watch;
      shown.TheInput().Type(shown.Main().Filter, word.substr(0, size));
      QApplication::processEvents();
      double& slowest = size == 1 ? times.first : times.further;
      slowest = std::max(slowest, watch.Milliseconds());
    }
  }
  return times;
}

FavoriteTimes TimeFavorites(const std::string& folder, int favorites) {
  setenv("XDG_CONFIG_HOME", (folder + "/favorites").c_str(), 1);
  Shown shown(folder);
  Environment& environment = shown.TheEnvironment();
  frmBVX& main = shown.Main();
  Input& input = shown.TheInput();
  SettingsStore(environment.registry)
      .ChangeStrings(Root::CurrentUser, kFavoritesPath, [&](SettingsTexts& stored) {
        const int step = main.ListView1.Count() / favorites;
        // The last one is not in the list.
        for (int i = 1; i <= favorites; ++i) {
          stored[std::to_string(i)] = std::to_string(i * step + step) + ",Green Fields Fund";
        }
        stored[""] = std::to_string(favorites);
      });
  SettingsStore settings(environment.registry);
  RunValues run;
  SessionValues values;
  OrganizationDatabase database(main, run, settings, environment.files,
                                environment.info.Resource("sharedb.dat"));
  database.LoadOrganizationList();
  ListViewEvents rows(main, values, shown.TheProgram().TheDesk(), run, [] {});
  Favorites own(main, settings, database, rows);
  FavoriteTimes times;
  const Stopwatch watch;
  input.Enter([&] { own.LoadFavoritesMenu(); });
  times.menu = watch.Milliseconds();
  if (main.mnuFavs.items.size() != static_cast<std::size_t>(favorites)) {
    throw std::runtime_error("the favorites were not found");
  }
  input.SelectRow(main.ListView1, 3, MouseButton::Left);
  const Stopwatch add;
  input.ChooseMenu(main.mnuFavAdd);
  times.added = add.Milliseconds();
  return times;
}

}  // namespace benevix
