#include <gtest/gtest.h>
#include <memory>
#include <random>

#include "base/format.h"
#include "session_fixture.h"

namespace benevix {
namespace {

std::string Cents(std::int64_t cents) {
  return Currency::FromUnits(cents * 100).ToText();
}

TEST(DonationEntry, InvalidEntriesAndOverflowsChangeNothing) {
  SessionFixture session;
  session.TypeBudget("200");
  for (const char* text : {"", ".", "99999999999", "1e999"}) session.Give(2, text);
  session.Give(1, "5");  // a country
  session.Give(0, "5");
  session.main.ListView1.selected = 2;
  session.main.Text1[2].Write("5");  // the program's own text
  session.donation.Enter();
  session.rates.CardRate = Currency::FromUnits(std::numeric_limits<std::int64_t>::max());
  session.Give(2, "150");
  session.contact.Text1[contact_field::kCountry].text.clear();
  session.Give(2, "5");
  EXPECT_EQ(session.asked, 2);  // for the payment method and for the country
  EXPECT_TRUE(session.main.ListView1.cells.empty() && session.main.Option3[0].enabled);
  EXPECT_EQ(session.values.Balance.ToText(), "200");
}

// A donation that would overdraw the Balance is reduced by one fee.
TEST(DonationEntry, TheBalanceStopsAtZero) {
  SessionFixture session(payment::kCreditCard, false);
  session.TypeBudget("50");
  session.Give(2, "50");
  session.Give(2, "51");
  EXPECT_EQ(session.main.ListView1.SubItem(2, column::kAmount), "49.00");
  EXPECT_EQ(session.values.Balance, Currency());
  EXPECT_TRUE(session.boxes.shown.empty());
}

std::string Maximum(const SessionFixture& session) {
  const std::string& question = session.boxes.shown.back().text;
  return question.substr(question.find('$') + 1, question.find(".  ") - question.find('$') - 1);
}

TEST(DonationEntry, NamesTheMaximumToTheCent) {
  SessionFixture added(payment::kCreditCard, false);
  added.TypeBudget("100");
  for (const char* text : {"50", "200"}) added.Give(2, text);
  EXPECT_EQ(Maximum(added), "100");

  SessionFixture funds(payment::kFundsTransfer);
  funds.TypeBudget("100");
  Choose(funds.main.Option2, 1);
  funds.Give(2, "97");
  Choose(funds.main.Option2, 0);
  funds.Give(2, "99");
  EXPECT_EQ(Maximum(funds), "98");

  // The e-check fee of 5 is refunded with a refusal, and deducted once.
  SessionFixture eCheck(payment::kECheck);
  eCheck.boxes.answer = BoxAnswer::Yes;
  eCheck.TypeBudget("20");
  eCheck.Give(2, "13.5");
  EXPECT_EQ(Maximum(eCheck) + " " + eCheck.values.Balance.ToText(), "13 21");
  for (const char* text : {"13.5", "0", "10"}) eCheck.Give(2, text);
  EXPECT_EQ(eCheck.values.Balance.ToText(), "4");

  // For a foreign donor each computation raises the rate by a point, a refused one too. At 4.9:
  // 45.37 + 2 + 2.62113 = 49.99113; 45.38 + 2 + 2.62162 = 50.00162.
  SessionFixture card;
  card.contact.Text1[contact_field::kCountry].text = "United Kingdom";
  card.TypeBudget("50");
  card.Give(2, "48");
  EXPECT_EQ(Maximum(card), "45.37");
  card.boxes.answer = BoxAnswer::Yes;
  for (int i = 0; i < 2; ++i) card.Give(2, "48");  // at 5.9: 48 + 2 + 3.25 is 3.25 too much, so 4
  EXPECT_EQ(card.rates.CardRate.ToText(), "5.9");
  EXPECT_EQ(card.values.Balance.ToText(), "0.75");
  card.Give(2, "0");
  EXPECT_EQ(card.values.Balance.ToText(), "54");
}

// Random donations, changes, withdrawals and refusals.
TEST(DonationEntry, NoMoneyAppearsOrGetsLost) {
  std::mt19937 random(9);
  std::size_t refused = 0;
  for (int round = 0; round < 300; ++round) {
    const int option = round % 4 - 1;  // -1: no method
    const bool deducts = random() % 4 != 0;
    SessionFixture session(option, deducts);
    if (random() % 2 == 0) session.contact.Text1[contact_field::kCountry].text = "Canada";
    session.boxes.answer = random() % 2 == 0 ? BoxAnswer::Yes : BoxAnswer::No;
    session.TypeBudget(std::to_string(20 + random() % 500));
    for (int entry = 0; entry < 20; ++entry) {
      const int row = 2 + static_cast<int>(random() % 5);
      if (!deducts) session.Give(row, "0");  // a changed donation might stop at zero
      Choose(session.main.Option2, random() % 2);
      const auto asked = session.boxes.shown.size();
      const SessionValues before = session.values;
      session.Give(row, random() % 4 == 0 ? "0" : Cents(random() % 20000));
      if (session.boxes.shown.size() > asked) {
        EXPECT_EQ(session.values.Balance - before.Balance, session.values.Budget - before.Budget);
      }
      Currency spent = session.Sum(column::kAmount);
      if (deducts) spent += session.Sum(column::kFee) + session.Sum(column::kCardFee);
      if (session.values.SessionFeeTaken) spent += session.rates.SessionFee;
      ASSERT_EQ(session.values.Balance + spent, session.values.Budget) << round << " " << entry;
      ASSERT_EQ(session.values.TotalDonated, session.Sum(column::kAmount));
      ASSERT_GE(session.values.Balance, Currency());
      ASSERT_EQ(session.values.SessionFeeTaken,
                deducts && option == payment::kECheck && !session.main.Option3[0].enabled);
    }
    refused += session.boxes.shown.size();
  }
  EXPECT_GT(refused, 500U);
}

// A session in which a donation of 777.77 was just refused.
std::unique_ptr<SessionFixture> Refused(unsigned seed, BoxAnswer answer) {
  std::mt19937 random(seed);
  const bool deducts = random() % 5 != 0;
  auto session = std::make_unique<SessionFixture>(static_cast<int>(random() % 3), deducts);
  session->rates.CardRate = Currency::FromUnits(static_cast<std::int64_t>(1 + random() % 200000));
  if (random() % 2 == 0) session->contact.Text1[contact_field::kCountry].text = "Canada";
  session->TypeBudget(std::to_string(12 + random() % 300));
  // Not in add mode: there a changed donation may exceed the maximum, as the Balance stops at zero.
  if (deducts && random() % 2 == 0) session->Give(2, "3.21");
  session->boxes.answer = answer;
  session->Give(2, "777.77");
  return session;
}

TEST(DonationEntry, TheMaximumIsAcceptedAndACentMoreIsNot) {
  for (unsigned seed = 0; seed < 150; ++seed) {
    const std::string named = Maximum(*Refused(seed, BoxAnswer::No));
    const auto maximum = Currency::FromText(named).Units() / 100;
    for (const int cents : {-1, 0, 1, 2}) {
      const auto session = Refused(seed, BoxAnswer::No);
      session->Give(2, Cents(maximum + cents));
      EXPECT_EQ(session->boxes.shown.size(), cents > 0 ? 2U : 1U) << seed << ": " << named;
    }
  }
}

TEST(DonationEntry, AfterYesTheSameDonationFitsAndLessThanADollarIsLeft) {
  for (unsigned seed = 0; seed < 150; ++seed) {
    const auto session = Refused(seed, BoxAnswer::Yes);
    EXPECT_EQ(session->values.Budget.Units() % Currency::kScale, 0);
    EXPECT_EQ(session->main.Text1[0].text, Format(session->values.Budget, kMoneyPattern));
    session->Give(2, "777.77");
    EXPECT_EQ(session->main.ListView1.SubItem(2, column::kAmount), "777.77") << seed;
    EXPECT_LT(session->values.Balance, Currency::FromWhole(1)) << seed;
  }
}

}  // namespace
}  // namespace benevix
