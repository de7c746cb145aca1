#include "records/last_session.h"

#include <set>
#include <string_view>

#include "base/lines.h"
#include "base/runtime_error.h"
#include "core/date_text.h"
#include "database/organization_list.h"
#include "platform/line_reader.h"
#include "session/fees.h"
#include "session/modes.h"
#include "session/totals.h"

namespace benevix {

void LastSession::Remember(const std::string& records) {
  settings_.SaveUserString("LastSession", DateText(environment_.clock.Now()) + records);
}

bool LastSession::Replace() {
  if (values_.TotalDonated == Currency()) return true;
  const BoxAnswer answer = messages_.Show("Replace the session that is going on?",
                                          BoxIcon::Question, BoxButtons::NoByDefault);
  if (answer != BoxAnswer::Yes) return false;
  newSession_();
  return true;
}

std::string LastSession::mnuRecallSession_Click() {
  const std::string stored = settings_.GetUserString("LastSession");
  if (stored.empty() || !Replace()) return {};
  const std::string value = stored + ",";
  std::string_view rest = value;
  const std::string date(CutField(rest, ','));
  main_.caption = environment_.info.deployment.product + " - Last Session: " + date;
  std::vector<OptionsRecord> records;
  while (rest.size() >= 2) records.push_back(OptionsRecord::CutFrom(rest));
  try {
    Refill(FindRows(records));
  } catch (const RuntimeError&) {
    // Without the list file nothing is recalled.
  }
  return date;
}

bool LastSession::GiveAgain(const std::string& date, const std::vector<OptionsRecord>& records) {
  if (!Replace()) return false;
  std::set<std::string> names;
  for (const OptionsRecord& record : records) names.insert(record.organization);
  auto rows = database_.FindRowsByName(names);
  Donations donations;
  std::string missing;
  for (const OptionsRecord& record : records) {
    // Each row is taken once: a second organization of the same name cannot be told from it.
    const auto row = rows.extract(record.organization);
    if (row.empty()) {
      missing += "\r\n" + record.organization;
      continue;
    }
    donations.emplace_back(row.mapped(), record);
    donations.back().second.organization = main_.ListView1.SubItem(row.mapped(), column::kId);
  }
  main_.caption = environment_.info.deployment.product + " - Session of " + date;
  Refill(donations);
  if (!missing.empty()) {
    messages_.Show("These organizations are not found in the list. They are not given:" + missing);
  }
  return true;
}

LastSession::Donations LastSession::FindRows(std::vector<OptionsRecord> records) const {
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

  Donations donations;
  for (OptionsRecord& record : records) {
    const auto numbered = byId.find(record.organization);
    record.organization = nameOf(record.organization);
    const auto named = byName.find(record.organization);
    if (named == byName.end() && numbered == byId.end()) continue;
    donations.emplace_back(named != byName.end() ? named->second : numbered->second,
                           std::move(record));
  }
  return donations;
}

void LastSession::Refill(const Donations& donations) {
  Currency total;
  ListView& list = main_.ListView1;
  const std::string pool = DeliveryText(main_, true);
  int first = 0;
  try {
    for (const auto& [row, record] : donations) {
      total += Currency::FromText(record.amount);  // first: an overflow leaves the row empty
      if (first == 0 || row < first) first = row;
      list.SetSubItem(row, column::kAmount, record.amount);
      list.SetSubItem(row, column::kPool, record.delivery);
      list.SetSubItem(row, column::kFrom, record.from);
      list.SetSubItem(row, column::kFee, ServiceFeeOf(rates_, record.delivery == pool).ToText());
      list.SetSubItem(row, column::kRecord, record.ToText());
    }
    if (first != 0) list.EnsureVisible(first);
    values_.Budget = total;
    RecalcTotalDonated(values_, main_.ListView1);
    values_.Balance = values_.Budget - values_.TotalDonated;
  } catch (const RuntimeError&) {
    return;
  }
  method73(values_, main_, desk_);
  MarkBudgetAccepted(main_);
  SetFeeMode(main_, FeeMode::Add);
  EnableFeeMode(main_, false);
}

std::map<std::string, std::string> LastSession::NamesInFile(
    const std::set<std::string>& ids) const {
  std::map<std::string, std::string> names;
  std::set<std::string_view> wanted(ids.begin(), ids.end());
  if (wanted.empty()) return names;
  LineReader lines(environment_.files.Open(environment_.info.Resource(kListFile)));
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
