#include <gtest/gtest.h>
#include <random>

#include "session_of_a_test.h"

namespace benevix {
namespace {

constexpr Currency kCent = Currency::FromUnits(100);
constexpr Currency kDollar = Currency::FromWhole(1);

Currency Cents(std::uint64_t cents) {
  return Currency::FromUnits(static_cast<std::int64_t>(cents) * 100);
}

TEST(DonationEntry, WritesTheRowAndTheTotals) {
  SessionOfATest session;
  session.TypeBudget("200");
  session.main.Check2.value = 1;
  session.Give(2, "50");
  EXPECT_EQ(session.Cell(2, column::kAmount), "50.00");
  EXPECT_EQ(session.Cell(2, column::kPool), "Pool");
  EXPECT_EQ(session.Cell(2, column::kFrom), "John Doe");
  EXPECT_EQ(session.Cell(2, column::kRecord), "200,50.00,Pool,John Doe,1,0");
  EXPECT_EQ(session.Cell(2, column::kFee), "2");
  EXPECT_EQ(session.Cell(2, column::kCardFee), "1.808");
  EXPECT_EQ(session.values.Balance.ToText(), "146.192");
  EXPECT_EQ(session.main.Text1[1].text, "146.19");
  EXPECT_EQ(session.main.Text1[2].text, "");
  EXPECT_EQ(session.desk.FocusOf(session.main), &session.main.ListView1);
  EXPECT_FALSE(session.main.Option3[0].enabled || session.main.mnuDeductFees.enabled);
  Choose(session.main.Option1, 2);
  Choose(session.main.Option2, 1);
  session.Give(2, "1000");  // too much; the proof of mailing was not to be had either
  session.Give(3, ".5");
  EXPECT_EQ(session.Cell(3, column::kRecord), "300,.50,Stand-alone,Anonymous,1,0");
  session.Give(2, "0");
  EXPECT_EQ(session.Cell(2, column::kAmount) + session.Cell(2, column::kRecord), "");
  EXPECT_EQ(session.Cell(2, column::kId), "200");
  EXPECT_EQ(session.values.TotalDonated.ToText(), "0.5");
}

TEST(DonationEntry, WhatIsNoEntryChangesNothing) {
  SessionOfATest session;
  session.TypeBudget("200");
  for (const char* text : {"", ".", "99999999999", "1e999"}) session.Give(2, text);
  session.Give(1, "5");  // a country
  session.Give(0, "5");
  session.main.ListView1.selected = 2;
  session.main.Text1[2].Write("5");
  session.donation.Enter();
  EXPECT_TRUE(session.main.ListView1.cells.empty());
  EXPECT_TRUE(session.main.Option3[0].enabled);
  session.contact.Text1[contact_field::kCountry].text.clear();
  session.Give(2, "5");
  EXPECT_EQ(session.contactAsked, 1);
  EXPECT_TRUE(session.main.ListView1.cells.empty());
  session.contact.Text1[contact_field::kCountry].text = "U.S.A.";
  session.rates.CardRate = Currency::FromUnits(std::numeric_limits<std::int64_t>::max());
  session.Give(2, "150");  // the card fee is beyond all money
  EXPECT_TRUE(session.main.ListView1.cells.empty());
  EXPECT_EQ(session.values.Balance.ToText(), "200");
  EXPECT_TRUE(session.main.Option3[0].enabled);
}

TEST(DonationEntry, ProofOfMailingFromAThousandOn) {
  for (const auto& [budget, typed, open] : {std::tuple("2000", "999", false),
                                            {"2000", "1000", true},
                                            {"999", "1000", false},
                                            {"2000", "2001", false}}) {
    SessionOfATest session;
    session.TypeBudget(budget);
    session.main.Check1.value = 1;
    session.Give(2, typed);
    EXPECT_EQ(session.main.Check1.enabled, open) << typed;
    EXPECT_EQ(session.main.Check1.value, open ? 1 : 0) << typed;
  }
}

TEST(DonationEntry, APercentageIsOfTheBalance) {
  SessionOfATest session(payment::kFundsTransfer, false);
  session.main.mnuPercentBal.checked = true;
  session.TypeBudget("200");
  session.Give(2, "10");
  session.Give(3, "33.3333");
  EXPECT_EQ(session.Cell(2, column::kAmount), "20.00");
  EXPECT_EQ(session.values.Donation.ToText(), "59.9999");
  EXPECT_EQ(session.Cell(3, column::kAmount), "60.00");
}

// The row's amount is the donation less one fee when the Balance would go below zero.
TEST(DonationEntry, TheBalanceStopsAtZero) {
  SessionOfATest session(payment::kCreditCard, false);
  session.TypeBudget("50");
  session.Give(2, "50");
  session.Give(2, "51");
  EXPECT_EQ(session.Cell(2, column::kAmount), "49.00");
  EXPECT_EQ(session.values.Balance, Currency());
  EXPECT_TRUE(session.boxes.shown.empty());
}

// Whatever is given, given again, withdrawn and refused: no cent appears or gets lost.
TEST(DonationEntry, MoneyIsOnlyMoved) {
  std::mt19937 random(9);
  int refused = 0;
  for (int round = 0; round < 300; ++round) {
    const int option = round % 4 - 1;  // no method is one, too
    const bool deducts = random() % 4 != 0;
    SessionOfATest session(option, deducts);
    if (random() % 2 == 0) session.contact.Text1[contact_field::kCountry].text = "Canada";
    session.boxes.answer = random() % 2 == 0 ? BoxAnswer::Yes : BoxAnswer::No;
    session.TypeBudget(std::to_string(20 + random() % 500));
    for (int entry = 0; entry < 20; ++entry) {
      const int row = 2 + static_cast<int>(random() % 5);
      Choose(session.main.Option2, random() % 2);
      Currency amount = random() % 4 == 0 ? Currency() : Cents(random() % 20000);
      const Currency most =
          session.values.Balance + Currency::FromText(session.Cell(row, column::kAmount));
      // Above this, but within the row's old fees, the Balance stops at zero.
      if (!deducts && amount > most && amount <= most + Currency::FromWhole(3)) amount = most;
      const auto asked = session.boxes.shown.size();
      const SessionValues before = session.values;
      session.Give(row, amount);
      if (session.boxes.shown.size() > asked) {
        ++refused;
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
  }
  EXPECT_GT(refused, 500);
}

struct OverLimitCase {
  int option;
  bool deducts, foreign, givenBefore;
  std::string budget;
  Currency rate;
};

// A session in which a donation was just refused.
std::unique_ptr<SessionOfATest> Refused(const OverLimitCase& it, BoxAnswer answer) {
  auto session = std::make_unique<SessionOfATest>(it.option, it.deducts);
  session->rates.CardRate = it.rate;
  if (it.foreign) session->contact.Text1[contact_field::kCountry].text = "Canada";
  session->TypeBudget(it.budget);
  if (it.givenBefore) session->Give(2, "3.21");
  session->boxes.answer = answer;
  session->Give(2, "777.77");
  return session;
}

TEST(DonationEntry, TheMaximumIsAcceptedAndACentMoreIsNot) {
  std::mt19937 random(10);
  for (int i = 0; i < 150; ++i) {
    const OverLimitCase it{static_cast<int>(random() % 3),
                           random() % 5 != 0,
                           random() % 2 == 0,
                           random() % 2 == 0,
                           std::to_string(12 + random() % 300),
                           Currency::FromUnits(static_cast<std::int64_t>(1 + random() % 200000))};
    const Currency maximum = Refused(it, BoxAnswer::No)->Maximum();
    // Row 2 in add mode takes more than its maximum: there the Balance stops at zero.
    const int most = it.deducts || !it.givenBefore ? 2 : 0;
    for (int cents = -2; cents <= most; ++cents) {
      const auto session = Refused(it, BoxAnswer::No);
      const auto asked = session->boxes.shown.size();
      Currency amount = maximum;
      for (int k = 0; k < std::abs(cents); ++k)
        amount = cents < 0 ? amount - kCent : amount + kCent;
      if (amount <= Currency()) continue;
      session->Give(2, amount);
      EXPECT_EQ(session->boxes.shown.size() - asked, cents > 0 ? 1U : 0U)
          << i << ": " << maximum.ToText() << " " << cents;
    }
  }
}

TEST(DonationEntry, AfterYesTheSameDonationFitsAndLessThanADollarIsLeft) {
  std::mt19937 random(11);
  for (int i = 0; i < 150; ++i) {
    const OverLimitCase it{static_cast<int>(random() % 3),
                           random() % 5 != 0,
                           random() % 2 == 0,
                           random() % 2 == 0,
                           std::to_string(12 + random() % 300),
                           Currency::FromUnits(static_cast<std::int64_t>(1 + random() % 200000))};
    const auto session = Refused(it, BoxAnswer::Yes);
    EXPECT_EQ(session->values.Budget.Units() % Currency::kScale, 0);
    EXPECT_EQ(session->main.Text1[0].text, Format(session->values.Budget, kMoneyPattern));
    EXPECT_EQ(session->main.Text1[1].foreColor, colors::kRed);
    EXPECT_EQ(session->main.Text1[2].text, "");
    session->Give(2, "777.77");
    EXPECT_EQ(session->boxes.shown.size(), 1U) << i;
    EXPECT_EQ(session->Cell(2, column::kAmount), "777.77") << i;
    EXPECT_LT(session->values.Balance, kDollar) << i;
  }
}

TEST(DonationEntry, ARefusedDonationLeavesTheSessionAsItWas) {
  SessionOfATest session(payment::kECheck);
  session.TypeBudget("20");
  session.Give(2, "14");  // with 2 and the session's 5 that is too much
  EXPECT_EQ(session.boxes.shown.back().text,
            " - Input Error|With the present options the maximum donation is: $13.   Would you "
            "like to adjust the Budget instead?   ");
  EXPECT_EQ(session.boxes.shown.back().icon, BoxIcon::Information);
  EXPECT_EQ(session.values.Balance.ToText(), "20");
  EXPECT_EQ(session.main.Text1[2].text, "14");
  EXPECT_TRUE(session.main.Option3[1].enabled);
  EXPECT_TRUE(session.main.ListView1.cells.empty());
  session.Give(2, "13");
  session.Give(2, "0");
  session.Give(3, "13");
  EXPECT_EQ(session.boxes.shown.size(), 1U);  // the session's charge came once
  EXPECT_EQ(session.values.Balance, Currency());
  EXPECT_FALSE(session.main.Option3[1].enabled);
}

}  // namespace
}  // namespace benevix
