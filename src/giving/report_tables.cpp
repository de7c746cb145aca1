#include "giving/report_tables.h"

#include "base/format.h"
#include "giving/gifts_csv.h"

namespace benevix {
namespace {

std::string Sum(Currency amount) {
  return Format(amount, kSumPattern);
}

class OrganizationTable : public TableRows {
 public:
  explicit OrganizationTable(std::shared_ptr<const ReportContents> report)
      : report_(std::move(report)) {}

  [[nodiscard]] int Count() const override {
    return static_cast<int>(report_->figures.organizations.size());
  }
  [[nodiscard]] std::string Text(int row, int column) const override {
    const OrganizationGifts& gifts =
        report_->figures.organizations[static_cast<std::size_t>(row - 1)];
    switch (column) {
      case 0:
        return std::string(report_->history.Organizations()[gifts.organization]);
      case 1:
        return std::to_string(gifts.gifts);
      case 2:
        return Sum(gifts.total);
      case 3:
        return DayText(gifts.last);
      default:
        return std::to_string(gifts.certificates);
    }
  }

 private:
  std::shared_ptr<const ReportContents> report_;
};

}  // namespace

std::shared_ptr<const TableRows> OrganizationRows(std::shared_ptr<const ReportContents> report) {
  return std::make_shared<OrganizationTable>(std::move(report));
}

SessionRows::SessionRows(std::shared_ptr<const ReportContents> report, int unfolded)
    : report_(std::move(report)),
      unfolded_(unfolded),
      gifts_(unfolded < 0 ? 0 : static_cast<int>(Session(unfolded).gifts)) {}

int SessionRows::Count() const {
  return static_cast<int>(report_->figures.sessions.size()) + gifts_;
}

int SessionRows::GiftAt(int row) const {
  const int gift = row - 1 - unfolded_ - 1;
  return unfolded_ >= 0 && gift >= 0 && gift < gifts_ ? gift : -1;
}

int SessionRows::SessionAt(int row) const {
  if (GiftAt(row) >= 0) return unfolded_;
  return unfolded_ >= 0 && row - 1 > unfolded_ ? row - 1 - gifts_ : row - 1;
}

int SessionRows::RowOf(int session) const {
  return unfolded_ >= 0 && session > unfolded_ ? session + 1 + gifts_ : session + 1;
}

std::string SessionRows::Text(int row, int column) const {
  const GivenSession& session = Session(SessionAt(row));
  const int gift = GiftAt(row);
  if (gift < 0) return SessionText(session, column);
  const auto index = session.firstGift + static_cast<std::uint32_t>(gift);
  return GiftText(report_->history.Gifts()[index], column);
}

std::string SessionRows::SessionText(const GivenSession& session, int column) const {
  switch (column) {
    case 0:
      return DayText(session.day);
    case 1:
      return std::string(report_->history.Transaction(session));
    case 2: {
      if (session.gifts == 0) return "None";
      const Gift& first = report_->history.Gifts()[session.firstGift];
      const std::string more =
          session.gifts == 1 ? "" : " and " + std::to_string(session.gifts - 1) + " more";
      return std::string(report_->history.Organizations()[first.organization]) + more;
    }
    case 3:
      return Sum(session.given);
    case 4:
      return Sum(session.serviceFee + session.cardFee);
    case 5:
      return Sum(session.paid);
    case 6:
      return PaymentMethod(report_->history.Transaction(session));
    default:
      return StateText(report_->StateOf(session));
  }
}

std::string SessionRows::GiftText(const Gift& gift, int column) const {
  const GivenHistory& history = report_->history;
  switch (column) {
    case 1:
      return "from " + std::string(history.DonorOf(gift));
    case 2:
      return std::string(history.Organizations()[gift.organization]);
    case 3:
      return Sum(gift.amount);
    case 6:
      return std::string(history.DeliveryOf(gift));
    case 7:
      return gift.certificate && gift.proof ? "Certificate, proof"
             : gift.certificate             ? "Certificate"
             : gift.proof                   ? "Proof"
                                            : "";
    default:
      return {};
  }
}

}  // namespace benevix
