#include "player/values.h"

#include <map>

#include "base/number_text.h"
#include "player/properties.h"

namespace benevix {

std::optional<std::string> ReadValue(const Program& program, const std::string& name) {
  const SessionValues& values = program.Values();
  const FeeRates& rates = program.Rates();
  const RunValues& run = program.Run();
  const std::map<std::string, std::string> texts = {
      {"Budget", values.Budget.ToText()},
      {"BudgetEntered", values.BudgetEntered.ToText()},
      {"Balance", values.Balance.ToText()},
      {"Donation", values.Donation.ToText()},
      {"TotalDonated", values.TotalDonated.ToText()},
      {"BvxFee", values.BvxFee.ToText()},
      {"CardFee", values.CardFee.ToText()},
      {"PoolFee", std::to_string(rates.PoolFee)},
      {"StandAloneFee", std::to_string(rates.StandAloneFee)},
      {"CardRate", rates.CardRate.ToText()},
      {"CardFixed", rates.CardFixed.ToText()},
      {"SessionFee", rates.SessionFee.ToText()},
      {"RatesField6", rates.RatesField6},
      {"RatesField7", rates.RatesField7},
      {"ServerOK", BooleanText(run.ServerOK)},
      {"DBVersion", SingleToText(run.DBVersion)},
      {"YtdState", std::to_string(run.YtdState)},
      {"PlatformCode", std::to_string(run.PlatformCode)},
  };
  const auto found = texts.find(name);
  if (found == texts.end()) return std::nullopt;
  return found->second;
}

}  // namespace benevix
