// Random sessions of the whole logic: every step undone and redone, and continued by another run.

#include <gtest/gtest.h>
#include <random>

#include "../program_fixture.h"

namespace benevix {
namespace {

// All that a session is: its fields, and the rows that carry something.
struct State {
  SessionFields fields;
  std::map<int, ListView::Cells> rows;
  friend bool operator==(const State&, const State&) = default;
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

class Sessions : public ProgramFixture {
 public:
  explicit Sessions(unsigned seed) : random_(seed) {
    world.files.Replace(world.info.Resource("sharedb.dat"),
                        ";QUORL1\r\n[Kenya]\r\n00000042 Water For All, Relief\r\n00000007 Maple, "
                        "Health\r\n[Peru]\r\n00000123 Savanna, Schools\r\n00000009 Llamas, A\r\n");
    for (const auto& [name, value] : {std::pair("", "2"), {"1", "7,Maple"}, {"2", "123,Savanna"}}) {
      world.settings.Put("favorites", name, value);
    }
    world.settings.Put("user", "LastSession",
                       "02-15-2003,42,12.50,Pool,Ann,1,0,9,40.00,Stand-alone,Anonymous,0,0");
    Begin(program);
  }

  // Enters the program; the donor's name and country are known.
  static void Begin(Program& run) {
    run.Main();
    run.TheInput().Click(run.TheForms().Get<frmSplash>().Image2[0]);
    run.TheForms().Get<frmPersInfo>().Text1[contact_field::kCountry].text = "U.S.A.";
    run.TheForms().Get<frmBVX>().Combo1.text = "Ann Lee";
    run.TheInput().Choose(run.TheForms().Get<frmBVX>().Option3[0]);
  }

  // One thing that a donor might do.
  void Act() {
    boxes.answer = Below(2) == 0 ? BoxAnswer::Yes : BoxAnswer::No;
    const auto [label, box] = std::pair(Below(12), money_box::kDonation);
    input.SelectRow(main.ListView1, 1 + Below(6), MouseButton::Left);
    if (label == 0) Enter(money_box::kBudget, std::to_string(1 + Below(400)));
    if (label == 1) input.Choose(main.Option2[Below(2)]);
    if (label == 2) input.Choose(main.Option3[Below(2)]);
    if (label == 3) input.ChooseMenu(Below(2) == 0 ? main.mnuDirectCurr : main.mnuPercentBal);
    if (label == 4) input.ChooseMenu(main.mnuCls);
    if (label == 5) input.ChooseMenu(main.mnuCorrect);
    if (label == 6) input.ChooseMenu(main.mnuDistribFavs);
    if (label == 7 && Below(3) == 0) input.ChooseMenu(main.mnuRecallSession);
    if (label == 8 && Below(4) == 0) input.ChooseMenu(main.mnuNew);
    if (label > 8) Enter(box, std::to_string(Below(90)) + ".5");
    if (program.TheDesk().IsShown(payment)) {
      input.Choose(payment.Option1[Below(3)]);
      input.Click(payment.Command1[0]);
    }
  }

  frmBVX& main = program.TheForms().Get<frmBVX>();

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  void Enter(int box, const std::string& text) {
    input.Focus(main.Text1[box]);
    input.Type(main.Text1[box], text);
    input.Key(main.Text1[box], keys::kEnter);
  }

  std::mt19937 random_;
  frmPayOpt& payment = program.TheForms().Get<frmPayOpt>();
  Input& input = program.TheInput();
};

TEST(JournalTest, EverythingIsUndoneRedoneAndContinued) {
  std::size_t steps = 0;
  for (unsigned seed = 0; seed < 10; ++seed) {
    SCOPED_TRACE(seed);
    Sessions session(seed);
    Input& input = session.program.TheInput();
    const State empty = StateOf(session.program);
    for (int i = 0; i < 25; ++i) session.Act();

    // Back to the beginning, and there again: each state as it was.
    std::vector<State> passed = {StateOf(session.program)};
    while (session.main.mnuUndo.enabled) {
      input.ChooseMenu(session.main.mnuUndo);
      passed.push_back(StateOf(session.program));
    }
    const State& first = passed.back();
    for (const char* money : {"Budget", "Balance", "TotalDonated", "SessionFeeTaken"}) {
      EXPECT_EQ(first.fields[FieldNamed(money)], empty.fields[FieldNamed(money)]) << money;
    }
    EXPECT_TRUE(first.rows.empty());
    steps += passed.size() - 1;
    for (std::size_t i = passed.size() - 1; i-- > 0;) {
      input.ChooseMenu(session.main.mnuRedo);
      EXPECT_EQ(Differences(StateOf(session.program), passed[i]), "");
    }
    EXPECT_FALSE(session.main.mnuRedo.enabled);

    // A power cut; another run goes on with the same session and the same steps.
    Program next(session.program.TheEnvironment());
    Sessions::Begin(next);
    frmBVX& main = next.TheForms().Get<frmBVX>();
    if (!main.Unfinished.visible) continue;
    next.TheInput().Click(main.ContinueUnfinished);
    EXPECT_EQ(StateOf(next).rows, passed[0].rows);
    for (const char* money : {"Budget", "Balance", "TotalDonated", "BvxFee"}) {
      EXPECT_EQ(StateOf(next).fields[FieldNamed(money)], passed[0].fields[FieldNamed(money)]);
    }
    for (std::size_t i = 1; i < passed.size(); ++i) {
      next.TheInput().ChooseMenu(main.mnuUndo);
      EXPECT_EQ(Differences(StateOf(next), passed[i]), "");
    }
    EXPECT_FALSE(main.mnuUndo.enabled);
  }
  EXPECT_GT(steps, 60U);
}

}  // namespace
}  // namespace benevix
