#include <algorithm>

#include "giving/gifts_csv.h"
#include "targets.h"

namespace benevix {

void CheckHistory(std::string_view input) {
  const GivenHistory history(input);
  const auto notKnown = [](std::string_view /*transaction*/) { return PaymentState::NotKnown; };
  const auto all = WholeRange(history);
  if (!all) return;
  const GivingFigures figures = FiguresOf(history, *all, notKnown);
  Currency ofGifts, ofOrganizations;
  for (const Gift& gift : history.Gifts()) ofGifts += gift.amount;
  for (const auto& gifts : figures.organizations) ofOrganizations += gifts.total;
  Require(ofGifts == figures.given, "the sessions' sums are those of their gifts");
  Require(ofOrganizations == figures.given, "and so are the organizations'");
  Require(figures.sessions.size() == history.Sessions().size(), "no session is left out");
  const std::string csv = GiftsCsv(history, *all, notKnown);
  const auto rows = static_cast<std::size_t>(std::count(csv.begin(), csv.end(), '\n')) - 1;
  Require(rows == history.Gifts().size(), "a row of the table is a gift");
}

}  // namespace benevix
