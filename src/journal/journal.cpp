#include "journal/journal.h"

#include <algorithm>
#include <ranges>
#include <set>
#include <utility>

#include "base/runtime_error.h"
#include "core/date_text.h"
#include "session/totals.h"

namespace benevix {
namespace {

bool Differ(FieldKind kind, const SessionFields& a, const SessionFields& b) {
  for (std::size_t field = 0; field < a.size(); ++field) {
    if (KindOf(field) == kind && a[field] != b[field]) return true;
  }
  return false;
}

std::set<int> ChangedRows(const Step& step) {
  std::set<int> rows;
  for (const RowChange& change : step.rows) rows.insert(change.row);
  return rows;
}

bool IsUnfinished(const Timeline& session) {
  return !session.Rows().empty() || session.Fields()[FieldNamed("Budget")] != "0";
}

}  // namespace

Journal::Journal(SessionPlaces places, Desk& desk, const OrganizationDatabase& database,
                 Files& files, const Clock& clock, FilePath file,
                 std::function<void(const std::string&)> report)
    : places_(places),
      desk_(desk),
      database_(database),
      files_(files),
      clock_(clock),
      file_(std::move(file)),
      report_(std::move(report)),
      timeline_(PresentSession()) {}

std::string Journal::Now() const {
  const DateTime now = clock_.Now();
  return DateText(now) + ", " + TimeText(now);
}

std::optional<RowState> Journal::StateOf(int row) const {
  const auto written = List().cells.find(row);
  if (written == List().cells.end() || !List().rows) return std::nullopt;
  return RowState{List().rows->Text(row, column::kId),
                  List().rows->Text(row, column::kOrganization), written->second};
}

RowStates Journal::PresentRows() const {
  RowStates rows;
  for (const auto& [row, cells] : List().cells) {
    if (const auto state = StateOf(row)) rows[row] = *state;
  }
  return rows;
}

Timeline Journal::PresentSession() const {
  return {Now(), ReadFields(places_), PresentRows()};
}

void Journal::Open(bool holdsFile) {
  holdsFile_ = holdsFile;
  tellsNotKept_ = !holdsFile;
  places_.main.ListView1.writtenRows.clear();
  loads_ = List().loads;
  timeline_ = PresentSession();
  try {
    if (!holdsFile_ || !files_.Exists(file_)) return;
    JournalContents contents = ReadJournalText(files_.ReadAll(file_), timeline_.Fields());
    if (contents.session && IsUnfinished(*contents.session)) {
      unfinished_ = std::move(contents.session);
    }
    unrecorded_ = std::move(contents.sent);
  } catch (const RuntimeError& error) {
    Report(error);
  }
}

void Journal::AfterEvent() {
  if (desk_.Ended()) return;  // the windows are back to their design
  const SessionFields fields = ReadFields(places_);
  const auto rows = TakeChangedRows();
  std::string name = std::exchange(name_, {});
  const SessionFields& before = timeline_.Fields();
  if (rows.empty() && !Differ(FieldKind::Money, before, fields)) {
    const bool chosen = Differ(FieldKind::Choice, before, fields);
    timeline_.Amend(fields);
    if (chosen && fileFollows_) Write(AmendLine(standing_, fields));
    return;
  }
  const std::string amended = Amended(before);
  timeline_.Note(Now(), std::move(name), fields, rows);
  unfinished_.reset();
  tellsNotKept_ = false;
  Write(amended + StepLine(*timeline_.ToUndo()));
}

std::map<int, std::optional<RowState>> Journal::TakeChangedRows() {
  std::set<int> written = std::exchange(places_.main.ListView1.writtenRows, {});
  if (List().loads != loads_) {
    FollowList();
    for (const auto& [row, state] : timeline_.Rows()) written.insert(row);
  }
  std::map<int, std::optional<RowState>> changed;
  for (const int row : written) {
    const auto known = timeline_.Rows().find(row);
    const auto before =
        known == timeline_.Rows().end() ? std::nullopt : std::optional(known->second);
    auto after = StateOf(row);
    if (before != after) changed[row] = std::move(after);
  }
  return changed;
}

void Journal::FollowList() {
  loads_ = List().loads;
  const RowStates known = timeline_.KnownRows();
  const std::map<int, int> places = PlacesInList(known);
  if (places.size() == known.size()) {
    timeline_.Renumber(places);
  } else {
    timeline_ = PresentSession();  // its steps could not find their rows again
    fileFollows_ = false;
  }
}

std::map<int, int> Journal::PlacesInList(const RowStates& known) const {
  std::map<int, int> places;
  std::set<std::string> ids, names;
  const RowSource* const list = List().rows.get();
  for (const auto& [row, state] : known) {
    if (list != nullptr && list->Text(row, column::kId) == state.id &&
        list->Text(row, column::kOrganization) == state.name) {
      places[row] = row;
    } else {
      ids.insert(state.id);
      names.insert(state.name);
    }
  }
  if (ids.empty()) return places;
  const auto byId = database_.FindRowsById(ids);
  const auto byName = database_.FindRowsByName(names);
  std::set<int> taken;  // no two rows become one
  for (const auto& [row, place] : places) taken.insert(place);
  for (const auto& [row, state] : known) {
    if (places.count(row) != 0) continue;
    for (const auto& [rows, key] : {std::pair(&byId, &state.id), std::pair(&byName, &state.name)}) {
      const auto found = rows->find(*key);
      if (found == rows->end() || !taken.insert(found->second).second) continue;
      places[row] = found->second;
      break;
    }
  }
  return places;
}

void Journal::Undo() {
  if (ToUndo() == nullptr) return;
  const std::string amended = Amended(timeline_.Fields());
  timeline_.Undo();
  Show(ChangedRows(*ToRedo()));
  Write(amended + UndoLine());
}

void Journal::Redo() {
  if (ToRedo() == nullptr) return;
  const std::string amended = Amended(timeline_.Fields());
  timeline_.Redo();
  Show(ChangedRows(*ToUndo()));
  Write(amended + RedoLine());
}

void Journal::Show(const std::set<int>& rows) {
  WriteFields(places_, timeline_.Fields());
  ListView& list = places_.main.ListView1;
  for (const int row : rows) {
    const auto state = timeline_.Rows().find(row);
    if (state == timeline_.Rows().end()) {
      list.ClearRow(row);
    } else {
      list.SetCells(row, state->second.cells);
    }
  }
  if (!rows.empty()) list.EnsureVisible(*rows.begin());
  list.writtenRows.clear();
}

RowStates Journal::ContinueUnfinished() {
  RowStates missing;
  if (!unfinished_) return missing;
  timeline_ = *std::exchange(unfinished_, std::nullopt);
  const RowStates known = timeline_.KnownRows();
  const std::map<int, int> places = PlacesInList(known);
  if (places.size() == known.size()) {
    timeline_.Renumber(places);
  } else {
    RowStates found;
    for (const auto& [row, state] : timeline_.Rows()) {
      const auto place = places.find(row);
      if (place == places.end()) {
        missing[row] = state;
      } else {
        found[place->second] = state;
      }
    }
    timeline_ = Timeline(timeline_.Time(), timeline_.Fields(), found);
  }
  std::set<int> rows;
  for (const auto& [row, cells] : List().cells) rows.insert(row);
  for (const auto& [row, state] : timeline_.Rows()) rows.insert(row);
  Show(rows);
  frmBVX& main = places_.main;
  if (places.empty() || std::ranges::any_of(places, [](auto& p) { return p.first != p.second; })) {
    main.ListView1.selected = 0;  // it was counted in another list
  }
  main.mnuPrntSession.enabled = false;  // the printout is not kept over a restart
  if (!missing.empty()) ReturnMoney(missing);
  timeline_.Amend(ReadFields(places_));
  Timeline first = timeline_;
  while (first.ToUndo() != nullptr) first.Undo();
  if (first.Fields()[FieldNamed("mnuPrntSession.enabled")] == "1") {
    timeline_ = PresentSession();  // what was sent is not brought back after a restart
  }
  fileFollows_ = false;
  Write("");
  desk_.SetFocus(main.ListView1);
  return missing;
}

void Journal::ReturnMoney(const RowStates& missing) {
  for (const auto& [row, state] : missing) {
    const auto money = [&, &cells = state.cells](int column) {
      return Currency::FromText(cells[static_cast<std::size_t>(column)]);
    };
    places_.values.Balance += money(column::kAmount);
    if (places_.main.mnuDeductFees.checked) {
      places_.values.Balance += money(column::kFee) + money(column::kCardFee);
    }
  }
  RecalcTotalDonated(places_.values, List());
  method73(places_.values, places_.main, desk_);
}

void Journal::GiveUpUnfinished() {
  unfinished_.reset();
  RemoveFile();
  desk_.SetFocus(places_.main.Text1[money_box::kBudget]);
}

void Journal::Sending(const std::string& transactionId) {
  sent_ = {Now(), transactionId, false};
  Write(SentLine(*sent_));
}

void Journal::NotSent() {
  sent_.reset();
  Write(SettledLine());
}

void Journal::Sent() {
  if (sent_) sent_->certain = true;
  timeline_ = PresentSession();
  fileFollows_ = false;  // the session is written only if it is changed once more
  try {
    if (holdsFile_ && sent_) files_.Replace(file_, SentLine(*sent_));
  } catch (const RuntimeError& error) {
    Report(error);
  }
}

void Journal::Recorded() {
  if (!std::exchange(sent_, std::nullopt)) return;
  if (timeline_.Steps().empty()) {
    RemoveFile();
  } else {
    Write(SettledLine());
  }
}

void Journal::ForgetUnrecorded() {
  unrecorded_.reset();
  if (!unfinished_) return RemoveFile();
  try {
    files_.Append(file_, SettledLine());
  } catch (const RuntimeError&) {
    // Told once more at the next start.
  }
}

std::string Journal::Amended(const SessionFields& fields) const {
  return fileFollows_ ? AmendLine(standing_, fields) : std::string();
}

void Journal::Write(const std::string& lines) {
  if (!holdsFile_) return;
  try {
    if (fileFollows_) {
      files_.Append(file_, lines);
    } else {
      const std::string note = sent_ ? SentLine(*sent_) : std::string();
      files_.Replace(file_, TimelineText(timeline_) + note);
    }
    fileFollows_ = true;
    standing_ = timeline_.Fields();
  } catch (const RuntimeError& error) {
    fileFollows_ = false;
    Report(error);
  }
}

void Journal::RemoveFile() {
  fileFollows_ = false;
  if (!holdsFile_) return;
  try {
    files_.Remove(file_);
  } catch (const RuntimeError& error) {
    Report(error);
  }
}

void Journal::Report(const RuntimeError& error) {
  if (!std::exchange(reported_, true)) report_(error.what());
}

}  // namespace benevix
