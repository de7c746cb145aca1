#include "journal/timeline.h"

#include <algorithm>
#include <ranges>

#include "journal/step_name.h"

namespace benevix {
namespace {

std::vector<FieldChange> Difference(const SessionFields& before, const SessionFields& after) {
  std::vector<FieldChange> changes;
  for (std::size_t field = 0; field < before.size(); ++field) {
    if (before[field] != after[field]) changes.push_back({field, before[field], after[field]});
  }
  return changes;
}

void Add(std::vector<FieldChange>& changes, FieldChange change) {
  const auto earlier = std::ranges::find(changes, change.field, &FieldChange::field);
  if (earlier == changes.end()) {
    changes.push_back(std::move(change));
  } else {
    earlier->after = std::move(change.after);
  }
}

}  // namespace

void Timeline::Note(std::string time, std::string name, const SessionFields& fields,
                    const std::map<int, std::optional<RowState>>& rows) {
  steps_.resize(done_);
  Step& step = steps_.emplace_back();
  step.time = std::move(time);
  step.fields = Difference(fields_, fields);
  for (const auto& [row, after] : rows) {
    const auto known = rows_.find(row);
    const auto before = known == rows_.end() ? std::nullopt : std::optional(known->second);
    if (!before && !after) continue;  // a journal of another hand may say so
    SetRow(row, after);
    step.rows.push_back({row, before, after});
  }
  step.name = name.empty() ? StepName(step.fields, step.rows) : std::move(name);
  fields_ = fields;
  ++done_;
}

void Timeline::Amend(const SessionFields& fields) {
  for (FieldChange& change : Difference(fields_, fields)) {
    // What was undone was done with the other choice: a donation in the other fee mode.
    if (KindOf(change.field) == FieldKind::Choice) steps_.resize(done_);
    AmendUndone(change);
    if (done_ > 0) Add(steps_[done_ - 1].later, std::move(change));
  }
  fields_ = fields;
}

void Timeline::AmendUndone(const FieldChange& amended) {
  for (std::size_t step = done_; step < steps_.size(); ++step) {
    for (auto* changes : {&steps_[step].fields, &steps_[step].later}) {
      const auto change = std::ranges::find(*changes, amended.field, &FieldChange::field);
      if (change == changes->end()) continue;
      // Also where the step then changes nothing: the field may be amended again.
      change->before = amended.after;
      return;
    }
  }
}

void Timeline::Undo() {
  const Step& step = steps_[--done_];
  for (const auto* changes : {&step.later, &step.fields}) {
    for (const FieldChange& change : *changes) fields_[change.field] = change.before;
  }
  for (const RowChange& change : step.rows) SetRow(change.row, change.before);
}

void Timeline::Redo() {
  const Step& step = steps_[done_++];
  for (const auto* changes : {&step.fields, &step.later}) {
    for (const FieldChange& change : *changes) fields_[change.field] = change.after;
  }
  for (const RowChange& change : step.rows) SetRow(change.row, change.after);
}

RowStates Timeline::KnownRows() const {
  RowStates known = rows_;
  for (const Step& step : steps_) {
    for (const RowChange& change : step.rows) {
      for (const auto* state : {&change.before, &change.after}) {
        if (*state) known.try_emplace(change.row, **state);
      }
    }
  }
  return known;
}

void Timeline::Renumber(const std::map<int, int>& rows) {
  RowStates renumbered;
  for (auto& [row, state] : rows_) renumbered[rows.at(row)] = std::move(state);
  rows_ = std::move(renumbered);
  for (Step& step : steps_) {
    for (RowChange& change : step.rows) change.row = rows.at(change.row);
  }
}

void Timeline::SetRow(int row, const std::optional<RowState>& state) {
  if (state) {
    rows_[row] = *state;
  } else {
    rows_.erase(row);
  }
}

}  // namespace benevix
