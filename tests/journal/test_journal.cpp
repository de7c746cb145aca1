// Random sessions of the whole logic: the books are kept, every step is undone and redone, and
// continued by another run.

#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <random>

#include "../files_under_failure/donor.h"
#include "books.h"

namespace benevix {
namespace {

// All that a session is: its fields, and the rows that carry something.
struct State {
  SessionFields fields;
  std::map<int, ListView::Cells> rows;
};

State StateOf(Program& program) {
  SessionValues values = program.Values();
  frmBVX& main = program.TheForms().Get<frmBVX>();
  return {ReadFields({main, program.TheForms().Get<frmPayOpt>(), values}), main.ListView1.cells};
}

std::string Differences(const State& is, const State& was) {
  std::string names = is.rows == was.rows ? "" : "rows ";
  for (std::size_t field = 0; field < is.fields.size(); ++field) {
    if (is.fields[field] != was.fields[field]) {
      names += FieldName(field) + " " + was.fields[field] + " -> " + is.fields[field] + "; ";
    }
  }
  return names;
}

TEST(JournalTest, EverythingIsUndoneRedoneAndContinued) {
  KeepWorldsInMemory();
  std::size_t steps = 0;
  for (unsigned seed = 10; seed < 80; ++seed) {
    SCOPED_TRACE(seed);
    World world;
    Furnish(world);
    std::mt19937 random(seed);
    Donor donor(world);
    std::optional<Books> books;
    for (const auto& step : RandomWay(random)) {
      step(donor);
      if (!books) books.emplace(donor.TheProgram());
      EXPECT_EQ(books->Follow(donor.TheProgram()), "");
    }

    // Back to where the session began, and there again: each state as it was.
    const auto undoAll = [&] {
      std::vector<State> passed = {StateOf(donor.TheProgram())};
      while (donor.TheProgram().TheForms().Get<frmBVX>().mnuUndo.enabled) {
        donor.Choose(&frmBVX::mnuUndo);
        EXPECT_EQ(books->Follow(donor.TheProgram()), "");
        passed.push_back(StateOf(donor.TheProgram()));
      }
      return passed;
    };
    const std::vector<State> passed = undoAll();
    steps += passed.size() - 1;
    const bool wasSent = world.files.Exists(world.info.Resource("history.dat"));
    EXPECT_TRUE(wasSent || passed.back().rows.empty());
    for (const char* money : {"Budget", "Balance", "TotalDonated"}) {
      EXPECT_TRUE(wasSent || passed.back().fields[FieldNamed(money)] == "0");
    }
    for (std::size_t i = passed.size() - 1; i-- > 0;) {
      donor.Choose(&frmBVX::mnuRedo);
      EXPECT_EQ(Differences(StateOf(donor.TheProgram()), passed[i]), "");
    }

    // Another run goes on with the same session and the same steps.
    if (wasSent || passed[0].fields[FieldNamed("Budget")] == "0") continue;
    donor.Start();
    const std::vector<State> continued = undoAll();
    ASSERT_EQ(continued.size(), passed.size());
    EXPECT_EQ(continued[0].rows, passed[0].rows);
    for (const char* money : {"Budget", "Balance", "TotalDonated", "BvxFee"}) {
      EXPECT_EQ(continued[0].fields[FieldNamed(money)], passed[0].fields[FieldNamed(money)]);
    }
    for (std::size_t i = 1; i < passed.size(); ++i) {
      EXPECT_EQ(Differences(continued[i], passed[i]), "");
    }
  }
  EXPECT_GT(steps, 150U);
  EXPECT_EQ(Books::met.size(), 5U);  // each exception was met
}

}  // namespace
}  // namespace benevix
