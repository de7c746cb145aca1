#include "journal/step_name.h"

#include <algorithm>
#include <cstdlib>

#include "base/format.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

Currency Money(const std::string& units) {
  return Currency::FromUnits(std::strtoll(units.c_str(), nullptr, 10));
}

std::string Amount(const std::optional<RowState>& state) {
  return state ? state->cells[column::kAmount] : std::string();
}

std::string RowStepName(const RowChange& change) {
  if (!change.after) return "Cleared " + change.before->name;
  const std::string amount = Amount(change.after);
  if (amount == Amount(change.before)) return "Corrected " + change.after->name;
  return "Donation of " + FormatText(amount, kSumPattern) + " to " + change.after->name;
}

std::string BudgetStepName(Currency before, Currency after) {
  if (before == Currency()) return "Budget of " + Format(after, kSumPattern);
  if (after > before) return "Budget raised by " + Format(after - before, kSumPattern);
  return "Budget lowered to " + Format(after, kSumPattern);
}

}  // namespace

std::string StepName(const std::vector<FieldChange>& fields, const std::vector<RowChange>& rows) {
  const auto budget = std::ranges::find(fields, FieldNamed("Budget"), &FieldChange::field);
  const bool hasBudget = budget != fields.end();
  if (hasBudget && Money(budget->after) == Currency()) return "New Session";
  if (rows.size() == 1) return RowStepName(rows.front());
  if (rows.size() > 1) return "Distributed among " + std::to_string(rows.size()) + " favorites";
  return hasBudget ? BudgetStepName(Money(budget->before), Money(budget->after))
                   : "Balance changed";
}

}  // namespace benevix
