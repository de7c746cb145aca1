#include "donation_bench.h"

#include <stdexcept>
#include <vector>

#include "benevix/machine.h"
#include "program/program.h"
#include "quiet.h"
#include "stopwatch.h"

namespace benevix {
namespace {

constexpr int kRuns = 301;
constexpr auto kBudget = "9000";

void Check(bool done, const char* action) {
  if (!done) throw std::runtime_error(std::string("failed: ") + action);
}

class Donor {
 public:
  explicit Donor(Program& program)
      : input_(program.TheInput()), forms_(program.TheForms()), values_(program.Values()) {}

  void Enter() {
    Check(input_.Click(forms_.Get<frmSplash>().Image2[0]), "enter");
    forms_.Get<frmPersInfo>().Text1[contact_field::kCountry].Write("U.S.A.");
    forms_.Get<frmBVX>().Combo1.text = "Ann Lee";
    Type(forms_.Get<frmBVX>().Text1[0], kBudget);
    Check(input_.Choose(forms_.Get<frmPayOpt>().Option1[payment::kCreditCard]), "choose a payment");
    Check(input_.Click(forms_.Get<frmPayOpt>().Command1[0]), "confirm the payment");
  }

  // Gives to the next organization of the list; after `count` of them starts again with the first,
  // changing its amount.
  void Give(int count) {
    const ListView& list = forms_.Get<frmBVX>().ListView1;
    const bool again = given_ >= count;
    if (given_ % count == 0) row_ = 0;
    do {
      ++row_;
    } while (!list.Text(row_).empty());
    const Currency before = values_.TotalDonated;
    Check(input_.SelectRow(forms_.Get<frmBVX>().ListView1, row_, MouseButton::Left),
          "select a row");
    Type(forms_.Get<frmBVX>().Text1[2], again ? "4" : "5");
    Check((values_.TotalDonated > before) != again, "give");
    ++given_;
  }

 private:
  void Type(TextBox& box, const std::string& text) {
    Check(input_.Focus(box), "focus a box");
    Check(input_.Type(box, text), "type");
    Check(input_.Key(box, keys::kEnter), "press Enter");
  }

  Input& input_;
  Forms& forms_;
  const SessionValues& values_;
  int row_ = 0;
  int given_ = 0;
};

}  // namespace

DonationTimes TimeDonationEntries(const std::string& folder, int given, Steps steps) {
  NoWaits waits;
  NoBoxes boxes;
  Machine machine(folder + "/benevix", waits, boxes);
  Environment environment = machine.TheEnvironment();
  const auto other =
      steps == Steps::InFile ? nullptr : environment.files.Lock(environment.info.folder, {});
  Program program(machine.TheEnvironment());
  program.Main();
  Donor donor(program);
  donor.Enter();
  for (int i = 0; i < given; ++i) donor.Give(given);
  std::vector<double> times;
  for (int i = 0; i < kRuns; ++i) {
    const Stopwatch watch;
    donor.Give(given);
    times.push_back(watch.Milliseconds());
  }
  environment.files.Remove(environment.info.Resource("session.journal"));
  return {program.TheForms().Get<frmBVX>().ListView1.Count(), given, Median(times)};
}

}  // namespace benevix
