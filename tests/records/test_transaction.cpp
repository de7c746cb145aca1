#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "records/transaction.h"
#include "records/ui/frmPayOpt.h"
#include "records_of_a_test.h"

namespace benevix {
namespace {

class RandomOfATest : public RandomNumbers {
 public:
  void Seed(float seed) override { seeded = seed; }
  double Next() override { return next; }
  float seeded = 0;
  double next = 0;
};

TEST(Transaction, MakesTheId) {
  ClockOfATest clock;
  RandomOfATest random;
  const struct {
    DateTime now;
    double next;
    int option;
    const char* id;
  } cases[] = {{{2003, 3, 10, 12, 34, 56.13}, 0.705547, 0, "45296.13-705547-2003310C"},
               {{2003, 12, 31, 23, 59, 59.99}, 0.9999996, 1, "86399.99-1000000-20031231A"},
               {{2024, 1, 2, 0, 0, 0}, 0, 2, "0-0-202412E"},
               {{2024, 1, 2, 0, 0, 7.5}, 0.0000025, 0, "7.5-2-202412C"}};
  for (const auto& [now, next, option, id] : cases) {
    clock.now = now;
    random.next = next;
    EXPECT_EQ(TransactionId(clock, random, option), id);
    EXPECT_EQ(random.seeded, TimerOf(now));
  }
}

// Donations of D with fees of 2 and 3 dollars and card fees of 1.5 and 0.25.
ListView WithFees() {
  ListView list = ListOfATest();
  PutDonation(list, 2, "1.00", "a", "2", "1.5");
  PutDonation(list, 3, "1.00", "b", "3", "0.25");
  return list;
}

TEST(Transaction, AmountsFollowThePaymentAndThePayee) {
  const struct {
    const char* donated;
    int option;
    bool sameAccount, roundUp;
    const char* amount;
  } cases[] = {{"100", payment::kFundsTransfer, false, false, "105.00"},
               {"100", payment::kFundsTransfer, true, false, "110.00"},
               {"100", payment::kECheck, false, false, "110.00"},
               {"100", payment::kCreditCard, false, false, "108.35"},  // 108.345
               {"100", payment::kCreditCard, false, true, "109"},
               {"100", payment::kFundsTransfer, false, true, "105.00"},
               {"7.01", payment::kFundsTransfer, false, true, "13"},
               {"0.0001", payment::kFundsTransfer, false, true, "5.00"},
               {"1234567.8", payment::kECheck, false, false, "1234577.80"}};
  for (const auto& [donated, option, sameAccount, roundUp, amount] : cases) {
    SessionValues values;
    values.TotalDonated = Currency::FromText(donated);
    FeeRates rates;
    rates.RatesField6 = "first";
    rates.RatesField7 = sameAccount ? "first" : "second";
    EXPECT_EQ(PaymentAmount(values, rates, WithFees(), option, roundUp), amount) << donated;
  }
  SessionValues half;
  half.TotalDonated = Currency::FromText("0.5");
  FeeRates rates;
  rates.RatesField6 = "first";
  for (const auto& [roundUp, amount] : {std::pair(false, ".50"), {true, "1"}}) {
    EXPECT_EQ(PaymentAmount(half, rates, ListOfATest(), payment::kFundsTransfer, roundUp), amount);
  }
  rates.CardRate = Currency::FromUnits(std::numeric_limits<std::int64_t>::max());
  half.TotalDonated = Currency::FromWhole(500);
  EXPECT_THROW(PaymentAmount(half, rates, ListOfATest(), payment::kCreditCard, false),
               RuntimeError);
}

TEST(Transaction, ChargesTheFeesThatComeOnTop) {
  SessionValues values;
  values.Budget = Currency::FromWhole(100);
  const FeeRates rates;
  const struct {
    int option;
    bool adds;
    const char* charged;
  } cases[] = {{payment::kCreditCard, true, "106.75"}, {payment::kCreditCard, false, "105"},
               {payment::kFundsTransfer, true, "105"}, {payment::kFundsTransfer, false, "105"},
               {payment::kECheck, true, "110"},        {payment::kECheck, false, "105"}};
  for (const auto& [option, adds, charged] : cases) {
    EXPECT_EQ(ChargedTotal(values, rates, WithFees(), option, adds).ToText(), charged);
  }
}

TEST(Transaction, RoundsTheServiceFeesAfterEachRow) {
  ListView list = ListOfATest();
  for (int row = 2; row <= 5; ++row) PutDonation(list, row, "1.00", "r", "2.5");
  EXPECT_EQ(ServiceFeeTotal(list).ToText(), "8");  // not at the end only
  list.SetSubItem(2, column::kFee, "1");
  EXPECT_EQ(ServiceFeeTotal(list).ToText(), "8");  // nor each on its own: 1, 3.5, 6.5, 8.5
  list.SetSubItem(2, column::kFee, "32767.4");
  list.SetSubItem(3, column::kFee, "1.5");
  EXPECT_THROW(ServiceFeeTotal(list), RuntimeError);
}

TEST(Transaction, JoinsTheRecordsOfOrganizationsInListOrder) {
  ListView list = ListOfATest();
  EXPECT_EQ(OrganizationRecords(list), "");
  PutDonation(list, 5, "1.00", "5,1.00,Pool,John Doe,0,0");
  PutDonation(list, 3, "2.00", "3,2.00,Pool,John Doe,1,0");
  PutDonation(list, 4, "3.00", "");  // carries none
  PutDonation(list, 1, "4.00", "a heading");
  EXPECT_EQ(OrganizationRecords(list), ",3,2.00,Pool,John Doe,1,0,5,1.00,Pool,John Doe,0,0");
}

}  // namespace
}  // namespace benevix
