#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "controls/list_view.h"
#include "journal/session_fields.h"

namespace benevix {

// What is known of a row that carries something of the session. The organization is named, so that
// the row is found again in another list.
struct RowState {
  std::string id, name;
  ListView::Cells cells;

  friend bool operator==(const RowState&, const RowState&) = default;
};

// By row number; without a state the row carries nothing.
using RowStates = std::map<int, RowState>;

struct FieldChange {
  std::size_t field = 0;
  std::string before, after;
};

struct RowChange {
  int row = 0;
  std::optional<RowState> before, after;
};

// One thing that the donor did: what it was, and what it changed, before and after.
struct Step {
  std::string time;
  std::string name;  // "Donation of 120.00 to Water For All"
  std::vector<FieldChange> fields;
  std::vector<RowChange> rows;
  std::vector<FieldChange> later;  // what changed until the next step without being one
};

// A session and its steps: where it stands, how it came there, and what was undone. A step costs in
// proportion to what it changed.
class Timeline {
 public:
  // `time` is that of the present; times are texts like "11-22-2026, 10:41".
  Timeline(std::string time, SessionFields fields, RowStates rows)
      : time_(std::move(time)), fields_(std::move(fields)), rows_(std::move(rows)) {}

  // Of the last step that stands, or when the session began.
  [[nodiscard]] const std::string& Time() const {
    return done_ > 0 ? steps_[done_ - 1].time : time_;
  }

  [[nodiscard]] const SessionFields& Fields() const { return fields_; }
  [[nodiscard]] const RowStates& Rows() const { return rows_; }

  // A step led to `fields`, and the rows given here to their new states. What was undone is
  // dropped. Without a name the step is called by what it changed.
  void Note(std::string time, std::string name, const SessionFields& fields,
            const std::map<int, std::optional<RowState>>& rows);
  // Something that is no step led to `fields`. What was undone is dropped if it was a choice.
  void Amend(const SessionFields& fields);

  // The step that would be undone or redone next; null without one.
  [[nodiscard]] const Step* ToUndo() const { return done_ > 0 ? &steps_[done_ - 1] : nullptr; }
  [[nodiscard]] const Step* ToRedo() const {
    return done_ < steps_.size() ? &steps_[done_] : nullptr;
  }
  // Need such a step.
  void Undo();
  void Redo();

  [[nodiscard]] const std::vector<Step>& Steps() const { return steps_; }
  [[nodiscard]] std::size_t Done() const { return done_; }

  // Every row that the session or one of its steps knows.
  [[nodiscard]] RowStates KnownRows() const;
  // Gives the rows other numbers; each known row needs one.
  void Renumber(const std::map<int, int>& rows);

 private:
  // The first undone step that changes the field will change it from its amended value.
  void AmendUndone(const FieldChange& amended);
  void SetRow(int row, const std::optional<RowState>& state);

  std::string time_;
  SessionFields fields_;
  RowStates rows_;
  std::vector<Step> steps_;
  std::size_t done_ = 0;  // the steps from here on were undone
};

}  // namespace benevix
