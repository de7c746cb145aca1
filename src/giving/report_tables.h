#pragma once

#include <memory>

#include "controls/table.h"
#include "giving/giving_figures.h"
#include "records/payment_states.h"

namespace benevix {

// What the report shows, kept by its tables while they are shown.
struct ReportContents {
  GivenHistory history;
  TransactionStates states;
  GivingFigures figures;

  [[nodiscard]] PaymentState StateOf(const GivenSession& session) const {
    return benevix::StateOf(states, history.Transaction(session));
  }
};

// A row for each organization in the order of the figures.
std::shared_ptr<const TableRows> OrganizationRows(std::shared_ptr<const ReportContents> report);

// A row for each session, and below the unfolded one its gifts.
class SessionRows : public TableRows {
 public:
  // `unfolded` is a place in the figures' sessions, -1 for none.
  SessionRows(std::shared_ptr<const ReportContents> report, int unfolded);

  [[nodiscard]] int Count() const override;
  [[nodiscard]] std::string Text(int row, int column) const override;
  [[nodiscard]] bool IsDetail(int row) const override { return GiftAt(row) >= 0; }

  // The place of the session that stands in a row, or whose gift does.
  [[nodiscard]] int SessionAt(int row) const;
  [[nodiscard]] int RowOf(int session) const;

 private:
  // Which of the unfolded session's gifts stands in a row, -1 for a session.
  [[nodiscard]] int GiftAt(int row) const;
  [[nodiscard]] const GivenSession& Session(int place) const {
    return report_->history.Sessions()[report_->figures.sessions[static_cast<std::size_t>(place)]];
  }
  [[nodiscard]] std::string SessionText(const GivenSession& session, int column) const;
  [[nodiscard]] std::string GiftText(const Gift& gift, int column) const;

  std::shared_ptr<const ReportContents> report_;
  int unfolded_;
  int gifts_;  // of the unfolded session
};

}  // namespace benevix
