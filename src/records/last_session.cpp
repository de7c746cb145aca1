#include "records/last_session.h"

#include <fstream>
#include <set>
#include <string_view>

#include "base/format.h"
#include "base/lines.h"
#include "base/runtime_error.h"
#include "platform/files.h"
#include "session/modes.h"
#include "session/totals.h"

namespace benevix {

void LastSession::mnuRecallSession_Click() {
  const std::string stored = settings_.GetUserString("LastSession");
  if (stored.empty()) return;
  const std::string value = stored + ",";
  std::string_view rest = value;
  main_.caption = info_.deployment.product + " - Last Session: " + std::string(CutField(rest, ','));
  std::vector<Record> records;
  while (rest.size() >= 2) {
    const auto next = [&rest] { return std::string(CutField(rest, ',')); };
    Record record;
    record.organization = next();
    record.amount = next();
    record.delivery = next();
    record.from = next();
    record.certificate = next();
    record.proof = next();
    records.push_back(record);
  }
  try {
    const Currency total = RefillRows(records);
    if (total > Currency()) {
      main_.Text1[1].foreColor = colors::kRed;
      main_.Text1[1].Write("0.00");
      main_.Text1[0].Write(total.ToText());
    }
    values_.Budget = total;
    RecalcTotalDonated(values_, main_.ListView1);
    values_.Balance = values_.Budget - values_.TotalDonated;
    method73(values_, main_, desk_);
  } catch (const RuntimeError&) {
    return;  // the rows already refilled stay
  }
  main_.Text1[0].Write(Format(values_.Budget, kMoneyPattern));
  main_.Text1[0].fontBold = true;
  main_.Text1[0].backColor = colors::kLightGrey;
  SetFeeMode(main_, FeeMode::Add);
  EnableFeeMode(main_, false);
}

Currency LastSession::RefillRows(const std::vector<Record>& records) {
  std::vector<Record> replaced = records;
  ReplaceByFile(replaced);
  std::set<std::string> names;
  std::set<std::string> ids;
  for (const Record& record : replaced) names.insert(record.organization);
  for (const Record& record : records) ids.insert(record.organization);
  const auto byName = database_.FindNames(names);
  const auto byId = database_.FindRows(ids);

  Currency total;
  ListView& list = main_.ListView1;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const Record& record = replaced[i];
    const auto named = byName.find(record.organization);
    const auto numbered = byId.find(records[i].organization);
    if (named == byName.end() && numbered == byId.end()) continue;
    const int row = named != byName.end() ? named->second : numbered->second;
    total += Currency::FromText(record.amount);  // first: a row stands only when its sum does
    list.SetSubItem(row, column::kAmount, record.amount);
    list.SetSubItem(row, column::kPool, record.delivery);
    list.SetSubItem(row, column::kFrom, record.from);
    list.SetSubItem(row, column::kRecord,
                    record.organization + "," + record.amount + "," + record.delivery + "," +
                        record.from + "," + record.certificate + "," + record.proof);
  }
  return total;
}

void LastSession::ReplaceByFile(std::vector<Record>& records) const {
  std::set<std::string_view> wanted;
  const std::vector<Record> asStored = records;
  for (const Record& record : asStored) wanted.insert(record.organization);
  if (wanted.empty()) return;
  const std::string file = info_.Resource("sharedb.dat");
  std::ifstream in(PathOf(file), std::ios::binary);
  if (!in) throw RuntimeError(file + ": cannot be read");
  for (std::string line; !wanted.empty() && std::getline(in, line);) {
    std::string_view rest = line;
    if (rest.find(',') == std::string_view::npos) continue;
    if (rest.back() == '\r') rest.remove_suffix(1);
    const std::string_view first = CutField(rest, ',');
    const auto found = wanted.find(first);
    if (found == wanted.end()) continue;
    const std::string second(CutField(rest, ','));
    for (std::size_t i = 0; i < records.size(); ++i) {
      if (asStored[i].organization == first) records[i].organization = second;
    }
    wanted.erase(found);
  }
}

}  // namespace benevix
