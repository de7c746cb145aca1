#include "giving/giving_report.h"

#include <algorithm>

#include "base/format.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/output.h"
#include "giving/gifts_csv.h"
#include "giving/report_pictures.h"
#include "giving/statement.h"
#include "session/typed_amount.h"

namespace benevix {
namespace {

constexpr const char* kGoalSetting = "YearGoal";

std::string Sum(Currency amount) {
  return Format(amount, kSumPattern);
}

std::string GoalText(const std::string& stored) {
  const auto amount = ReadAmount(stored).number;
  return amount ? Sum(Currency::FromDouble(*amount)) : stored;
}

// How often something is, in words: "1 line", "2 lines".
std::string Number(int count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::optional<Day> TypedDay(std::string_view text) {
  text = Trim(text);
  const auto day = ReadDay(text);
  return day ? day : ReadIsoDay(text);
}

}  // namespace

void GivingReport::mnuReport_Click() {
  if (desk_.IsShown(window_)) return desk_.Show(window_);
  desk_.Load(window_);
  Read();
  unfolded_ = -1;
  window_.Goal.Write(GoalText(settings_.GetUserString(kGoalSetting)));
  int last = 0;  // the last year in which something was given
  for (const GivenSession& session : report_->history.Sessions()) {
    if (session.day.year <= ThisYear()) last = std::max(last, session.day.year);
  }
  const bool isOlder = last != 0 && last < ThisYear() - 1;
  Choose(window_.Option1, last == 0 || last == ThisYear() ? report_range::kThisYear
                          : isOlder                       ? report_range::kFromTo
                                                          : report_range::kLastYear);
  range_ = WholeYear(last == 0 ? ThisYear() : last);
  ShowRange();
  desk_.Show(window_);
}

void GivingReport::Read() {
  report_ = std::make_shared<ReportContents>();
  error_.clear();
  try {
    report_->history = GivenHistory(environment_.files, environment_.info.Resource("history.dat"));
  } catch (const RuntimeError& error) {
    error_ = error.what();
  }
}

void GivingReport::Refresh() {
  if (!desk_.IsShown(window_)) return;
  // The history only grows, so a session keeps its index while its row changes.
  const int row = window_.Sessions.selected;
  const auto& before = report_->figures.sessions;
  const auto selected = row == 0 ? 0 : before[static_cast<std::size_t>(rows_->SessionAt(row))];
  unfolded_ = -1;
  Read();
  ShowFigures();
  const auto& sessions = report_->figures.sessions;
  const auto found = std::find(sessions.begin(), sessions.end(), selected);
  const bool isThere = row != 0 && found != sessions.end();
  ShowSessions(isThere ? static_cast<int>(found - sessions.begin()) + 1 : 0);
}

void GivingReport::Option1_Click(int index) {
  const int year = ThisYear();
  if (index == report_range::kThisYear) range_ = WholeYear(year);
  if (index == report_range::kLastYear) range_ = WholeYear(year - 1);
  if (index == report_range::kAll) range_ = WholeRange(report_->history).value_or(WholeYear(year));
  ShowRange();
  if (index == report_range::kFromTo) desk_.SetFocus(window_.Text1[0]);
}

void GivingReport::Text1_KeyUp(const EventArgs& args) {
  if (args.key == keys::kEnter || args.key == keys::kTab) TakeDates();
}

void GivingReport::Text1_LostFocus() {
  TakeDates();
}

void GivingReport::TakeDates() {
  std::optional<Day> days[2];
  for (int i = 0; i < 2; ++i) {
    TextBox& box = window_.Text1[i];
    days[i] = TypedDay(box.text);
    if (!days[i]) box.note = "This is no date: MM-DD-YYYY";
  }
  if (!days[0] || !days[1]) return;
  if (*days[1] < *days[0]) {
    window_.Text1[1].note = "The last day is before the first";
    return;
  }
  const DayRange range{*days[0], *days[1]};
  if (range == range_) return;
  Choose(window_.Option1, report_range::kFromTo);
  range_ = range;
  ShowRange();
}

void GivingReport::ShowRange() {
  window_.Text1[0].Write(DayText(range_.from));
  window_.Text1[1].Write(DayText(range_.to));
  unfolded_ = -1;
  ShowFigures();
  ShowSessions(0);
}

void GivingReport::ShowFigures() {
  report_->states = states_.Read();
  report_->figures = FiguresOf(report_->history, range_, [this](std::string_view transaction) {
    return StateOf(report_->states, transaction);
  });
  const bool isEmpty = report_->history.Sessions().empty();
  window_.Empty.visible = isEmpty;
  window_.Empty.caption =
      !error_.empty()
          ? "The history cannot be read: " + error_
          : "Nothing here yet. When you have sent your first session, this report shows "
            "what you gave, to whom and when.";
  window_.Content.visible = !isEmpty;
  const int unread = report_->history.UnreadLines();
  window_.Unread.visible = unread > 0;
  window_.Unread.caption = Number(unread, "line") + " of the history could not be read";
  const GivingFigures& figures = report_->figures;
  window_.Totals.caption = figures.sessions.empty()
                               ? "No gifts in these days"
                               : "Given " + Sum(figures.given) + "      Service fees " +
                                     Sum(figures.serviceFees) + "      Card fees " +
                                     Sum(figures.cardFees) + "      Paid " + Sum(figures.paid);
  window_.NotKnown.visible = figures.notKnown > 0;
  window_.NotKnown.caption = "It is not known whether " + Number(figures.notKnown, "session") +
                             (figures.notKnown == 1 ? " was paid" : " were paid");
  ShowPeriods(window_, figures, range_);
  ShowShares(window_.Shares, *report_);
  ShowGoal();
  Sort();
}

void GivingReport::ShowGoal() {
  const Currency goal = Currency::FromDouble(ReadAmount(window_.Goal.text).number.value_or(0));
  Currency given;
  if (goal > Currency()) {
    given =
        FiguresOf(report_->history, WholeYear(ThisYear()), [this](std::string_view transaction) {
          return StateOf(report_->states, transaction);
        }).given;
  }
  window_.GoalTitle.caption = "My goal for " + std::to_string(ThisYear());
  benevix::ShowGoal(window_.GoalUse, given, goal);
}

void GivingReport::Goal_KeyUp(const EventArgs& args) {
  if (args.key == keys::kEnter || args.key == keys::kTab) SaveGoal();
}

void GivingReport::SaveGoal() {
  const TypedAmount goal = ReadAmount(window_.Goal.text);
  if (!goal.number && !window_.Goal.text.empty()) {
    window_.Goal.note = goal.note;
    return;
  }
  const std::string stored = goal.number ? Currency::FromDouble(*goal.number).ToText() : "";
  window_.Goal.Write(GoalText(stored));
  if (stored != settings_.GetUserString(kGoalSetting) &&
      !settings_.SaveUserString(kGoalSetting, stored)) {
    window_.Goal.note = kNotSavedNote;
  }
  ShowGoal();
}

void GivingReport::Organizations_ColumnClick(int column) {
  Table& table = window_.Organizations;
  // Names begin with A, figures with the largest.
  const bool isNew = table.sorted != column;
  table.descending = isNew ? column != 0 : !table.descending;
  table.sorted = column;
  Sort();
}

void GivingReport::Sort() {
  Table& table = window_.Organizations;
  if (table.sorted < 0) {
    table.sorted = 2;
    table.descending = true;
  }
  const auto& names = report_->history.Organizations();
  // Of two that are equal the larger total comes first, as the figures have it.
  const auto before = [&](const OrganizationGifts& a, const OrganizationGifts& b) {
    switch (table.sorted) {
      case 0:
        return LowerCase(names[a.organization]) < LowerCase(names[b.organization]);
      case 1:
        return a.gifts < b.gifts;
      case 2:
        return a.total < b.total;
      case 3:
        return a.last < b.last;
      default:
        return a.certificates < b.certificates;
    }
  };
  auto& organizations = report_->figures.organizations;
  std::stable_sort(organizations.begin(), organizations.end(),
                   [&](const auto& a, const auto& b) { return a.total > b.total; });
  std::stable_sort(organizations.begin(), organizations.end(), [&](const auto& a, const auto& b) {
    return table.descending ? before(b, a) : before(a, b);
  });
  table.selected = 0;
  table.SetRows(OrganizationRows(report_));
}

void GivingReport::ShowSessions(int selected) {
  rows_ = std::make_shared<SessionRows>(report_, unfolded_);
  window_.Sessions.selected = selected;
  window_.Sessions.SetRows(rows_);
  ShowSelected();
}

const GivenSession* GivingReport::Selected() const {
  const int row = window_.Sessions.selected;
  if (row == 0) return nullptr;
  const auto place = static_cast<std::size_t>(rows_->SessionAt(row));
  return &report_->history.Sessions()[report_->figures.sessions[place]];
}

void GivingReport::ShowSelected() {
  const GivenSession* const session = Selected();
  const bool hasTransaction = session != nullptr && session->transactionSize > 0;
  window_.Frame2.enabled = hasTransaction;
  for (OptionButton& option : window_.Option2) option.value = false;
  if (hasTransaction) {
    const PaymentState state = report_->StateOf(*session);
    Choose(window_.Option2, state == PaymentState::Paid        ? 0
                            : state == PaymentState::Cancelled ? 1
                                                               : 2);
  }
  window_.Command1[report_button::kGiveAgain].enabled = session != nullptr && session->gifts > 0;
  const bool isEmpty = report_->figures.sessions.empty();
  for (const int button : {report_button::kPrint, report_button::kPdf, report_button::kCsv}) {
    window_.Command1[button].enabled = !isEmpty;
  }
}

void GivingReport::Sessions_ItemClick(const EventArgs& args) {
  // The arrow keys pass over the sessions without unfolding them.
  if (!args.byKeyboard) return ToggleGifts();
  ShowSelected();
}

void GivingReport::Sessions_KeyUp(const EventArgs& args) {
  if (args.key == keys::kEnter && window_.Sessions.selected != 0) ToggleGifts();
}

void GivingReport::ToggleGifts() {
  const int row = window_.Sessions.selected;
  if (rows_->IsDetail(row)) return ShowSelected();
  const int session = rows_->SessionAt(row);
  unfolded_ = unfolded_ == session ? -1 : session;
  ShowSessions(SessionRows(report_, unfolded_).RowOf(session));
}

void GivingReport::Option2_Click(int index) {
  const GivenSession* const session = Selected();
  if (session == nullptr) return;
  constexpr PaymentState states[] = {PaymentState::Paid, PaymentState::Cancelled,
                                     PaymentState::NotKnown};
  const std::string transaction(report_->history.Transaction(*session));
  if (states_.Set(transaction, states[index])) others_.stateChanged();
  const int selected = window_.Sessions.selected;
  ShowFigures();
  ShowSessions(selected);
}

void GivingReport::Command1_Click(int index) {
  const auto states = [this](std::string_view transaction) {
    return StateOf(report_->states, transaction);
  };
  switch (index) {
    case report_button::kGiveAgain:
      return GiveAgain();
    case report_button::kPrint: {
      const std::string told = PrintOrSave(environment_, Statement(), "Gifts " + RangeName());
      return Tell(told.empty() ? "The statement is printed" : told);
    }
    case report_button::kPdf:
      return Tell(SaveAs(environment_, "Save the statement", "Gifts " + RangeName() + ".pdf",
                         [this] { return environment_.printer.Pdf(Statement()); }));
    default:
      return Tell(SaveAs(environment_, "Save the gifts", "Gifts " + RangeName() + ".csv",
                         [&] { return GiftsCsv(report_->history, range_, states); }));
  }
}

PrintDocument GivingReport::Statement() const {
  const DateTime now = environment_.clock.Now();
  return StatementOf(
      report_->history, range_,
      [this](std::string_view transaction) { return StateOf(report_->states, transaction); },
      {others_.donor, environment_.info.deployment.product, {now.year, now.month, now.day}});
}

std::string GivingReport::RangeName() const {
  if (range_ == WholeYear(range_.from.year)) return std::to_string(range_.from.year);
  return IsoDayText(range_.from) + " to " + IsoDayText(range_.to);
}

void GivingReport::GiveAgain() {
  const GivenSession* const session = Selected();
  if (session == nullptr) return;
  const GivenHistory& history = report_->history;
  std::vector<OptionsRecord> gifts;
  for (std::uint32_t i = session->firstGift; i < session->firstGift + session->gifts; ++i) {
    const Gift& gift = history.Gifts()[i];
    gifts.push_back({std::string(history.Organizations()[gift.organization]),
                     Format(gift.amount, kAmountPattern), std::string(history.DeliveryOf(gift)),
                     std::string(history.DonorOf(gift)), gift.certificate ? "1" : "0",
                     gift.proof ? "1" : "0"});
  }
  const std::string date = DayText(session->day);
  if (others_.giveAgain(date, gifts)) desk_.Unload(window_);
}

void GivingReport::Tell(const std::string& text) {
  window_.Told.caption = text;
  window_.Told.visible = !text.empty();
}

}  // namespace benevix
