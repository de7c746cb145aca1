#include <gtest/gtest.h>

#include "session_of_a_test.h"

namespace benevix {
namespace {

TEST(BudgetEntry, AddsWholeDollarsToTheBudget) {
  const struct {
    std::vector<std::string> typed;
    const char *budget, *box;
    std::size_t questions;
  } cases[] = {{{"100"}, "100", "100.00", 0},
               {{"100", "100"}, "200", "200.00", 0},
               {{"100.6"}, "101", "101.00", 0},
               {{"2.5", "3.5"}, "6", "6.00", 0},
               {{"9998.5"}, "9998", "9,998.00", 0},
               {{"9999"}, "9999", "9,999.00", 1},
               {{"5000", "4999"}, "9999", "9,999.00", 1},
               {{"0"}, "0", "0", 0},
               {{""}, "0", "", 0},
               {{"."}, "0", ".", 0},
               {{"5", "2147483648"}, "5", "2147483648", 0},
               {{"1e999"}, "0", "1e999", 0},
               {{"2147483647", "2147483647"}, "4294967294", "4,294,967,294.00", 2}};
  for (const auto& [typed, budget, box, questions] : cases) {
    SessionOfATest session;
    session.boxes.answer = BoxAnswer::Yes;
    for (const std::string& text : typed) session.TypeBudget(text);
    EXPECT_EQ(session.values.Budget.ToText(), budget) << typed.back();
    EXPECT_EQ(session.values.Balance.ToText(), budget) << typed.back();
    EXPECT_EQ(session.main.Text1[0].text, box) << typed.back();
    EXPECT_EQ(session.boxes.shown.size(), questions) << typed.back();
    const std::string shown = session.main.Text1[0].text;
    session.budget.Enter();  // its own writing is no entry
    EXPECT_EQ(session.values.Budget.ToText(), budget) << typed.back();
  }
}

TEST(BudgetEntry, ALargeBudgetCanBeTakenBack) {
  SessionOfATest session(payment::kFundsTransfer);
  session.TypeBudget("20000");
  EXPECT_EQ(session.boxes.shown.back().text,
            "Alert! |You have entered a very large amount of money. Are you sure this is correct");
  EXPECT_EQ(session.boxes.shown.back().icon, BoxIcon::Question);
  EXPECT_EQ(session.values.Budget, Currency());
  EXPECT_EQ(session.paymentAsked, 0);
  session.TypeBudget("100");
  session.Give(2, "40");
  session.TypeBudget("20000");
  EXPECT_EQ(session.values.Budget.ToText(), "40");
  EXPECT_EQ(session.values.Balance.ToText(), "0");
  EXPECT_EQ(session.main.Text1[1].text, "0.00");
  EXPECT_EQ(session.main.Text1[1].foreColor, colors::kRed);
  session.TypeBudget("10");
  EXPECT_EQ(session.values.Balance.ToText(), "10");
  EXPECT_EQ(session.paymentAsked, 1);  // never once something is given
}

TEST(BudgetEntry, ContinueOpensWhenNoFeeCanBePaid) {
  for (const auto& [left, open] :
       {std::pair("0.00", true), {"1.50", true}, {"2.00", true}, {"2.01", false}}) {
    SessionOfATest session(payment::kFundsTransfer, false);
    session.TypeBudget("100");
    EXPECT_FALSE(session.main.Command1.enabled);
    session.Give(2, Currency::FromWhole(100) - Currency::FromText(left));
    EXPECT_EQ(session.main.Command1.enabled, open) << left;
  }
}

}  // namespace
}  // namespace benevix
