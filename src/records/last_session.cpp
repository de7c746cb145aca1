#include "records/last_session.h"

#include <algorithm>
#include <limits>
#include <set>
#include <string_view>

#include "base/lines.h"
#include "base/runtime_error.h"
#include "core/date_text.h"
#include "platform/line_reader.h"
#include "session/fees.h"
#include "session/modes.h"
#include "session/totals.h"

namespace benevix {

void LastSession::Remember(const std::string& records) {
  settings_.SaveUserString("LastSession", DateText(environment_.clock.Now()) + records);
}

std::string LastSession::mnuRecallSession_Click() {
  const std::string stored = settings_.GetUserString("LastSession");
  if (stored.empty()) return {};
  if (values_.TotalDonated != Currency()) {
    const BoxAnswer answer = messages_.Show("Replace the session that is going on?",
                                            BoxIcon::Question, BoxButtons::NoByDefault);
    if (answer != BoxAnswer::Yes) return {};
    newSession_();
  }
  const std::string value = stored + ",";
  std::string_view rest = value;
  const std::string date(CutField(rest, ','));
  main_.caption = environment_.info.deployment.product + " - Last Session: " + date;
  std::vector<OptionsRecord> records;
  while (rest.size() >= 2) records.push_back(OptionsRecord::CutFrom(rest));
  try {
    const Currency total = RefillRows(records);
    values_.Budget = total;
    RecalcTotalDonated(values_, main_.ListView1);
    values_.Balance = values_.Budget - values_.TotalDonated;
  } catch (const RuntimeError&) {
    return date;  // the rows already refilled stay
  }
  method73(values_, main_, desk_);
  MarkBudgetAccepted(main_);
  SetFeeMode(main_, FeeMode::Add);
  EnableFeeMode(main_, false);
  return date;
}

Currency LastSession::RefillRows(const std::vector<OptionsRecord>& records) {
  std::set<std::string> ids;
  for (const OptionsRecord& record : records) ids.insert(record.organization);
  const std::map<std::string, std::string> fromFile = NamesInFile(ids);
  const auto nameOf = [&](const std::string& id) {
    const auto found = fromFile.find(id);
    return found == fromFile.end() ? id : found->second;
  };
  std::set<std::string> names;
  for (const std::string& id : ids) names.insert(nameOf(id));
  const auto byName = database_.FindRowsByName(names);
  const auto byId = database_.FindRowsById(ids);

  Currency total;
  ListView& list = main_.ListView1;
  const std::string pool = DeliveryText(main_, true);
  constexpr int none = std::numeric_limits<int>::max();
  int first = none;
  for (OptionsRecord record : records) {
    const auto numbered = byId.find(record.organization);
    record.organization = nameOf(record.organization);
    const auto named = byName.find(record.organization);
    if (named == byName.end() && numbered == byId.end()) continue;
    const int row = named != byName.end() ? named->second : numbered->second;
    total += Currency::FromText(record.amount);  // first: an overflow leaves the row empty
    first = std::min(first, row);
    list.SetSubItem(row, column::kAmount, record.amount);
    list.SetSubItem(row, column::kPool, record.delivery);
    list.SetSubItem(row, column::kFrom, record.from);
    list.SetSubItem(row, column::kFee, ServiceFeeOf(rates_, record.delivery == pool).ToText());
    list.SetSubItem(row, column::kRecord, record.ToText());
  }
  if (first != none) list.EnsureVisible(first);
  return total;
}

std::map<std::string, std::string> LastSession::NamesInFile(
    const std::set<std::string>& ids) const {
  std::map<std::string, std::string> names;
  std::set<std::string_view> wanted(ids.begin(), ids.end());
  if (wanted.empty()) return names;
  LineReader lines(environment_.files.Open(environment_.info.Resource("sharedb.dat")));
  while (!wanted.empty()) {
    const auto line = lines.Next();
    if (!line) break;
    std::string_view rest = *line;
    if (rest.find(',') == std::string_view::npos) continue;
    if (rest.back() == '\r') rest.remove_suffix(1);
    const auto found = wanted.find(CutField(rest, ','));
    if (found == wanted.end()) continue;
    names[std::string(*found)] = CutField(rest, ',');
    wanted.erase(found);
  }
  return names;
}

}  // namespace benevix
