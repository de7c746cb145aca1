#include <gtest/gtest.h>

#include "../text_cases.h"
#include "base/runtime_error.h"
#include "session/fees.h"

namespace benevix {
namespace {

TEST(Fees, ReadsTheRatesFile) {
  // The last two have numbers beyond their type: the values read so far are kept.
  for (const auto& [file, expected] : Cases(
           {"4,5,3.1,0.4,6,A,B => 4 5 3.1 0.4 6 A B", "2.5,3.5,,x,1e1,A,B,C => 2 4 0 0 10 A B,C",
            "7 => 7 0 0 0 0  ", " => 2 3 2.9 0.3 5 six seven",
            "1,2,3,4,5,A,<B => 2 3 2.9 0.3 5 six seven", "99999,4,1,1,1,A,B => 9 9 9 9 9 six seven",
            "4,5,1e99,1,1,A,B => 4 5 9 9 9 six seven"})) {
    const Currency nine = Currency::FromWhole(9);
    FeeRates rates{9, 9, nine, nine, nine, "six", "seven"};
    frmBVX main;
    try {
      ReadFeeRates(file, rates, main);
    } catch (const RuntimeError&) {
    }
    EXPECT_EQ(std::to_string(rates.PoolFee) + " " + std::to_string(rates.StandAloneFee) + " " +
                  rates.CardRate.ToText() + " " + rates.CardFixed.ToText() + " " +
                  rates.SessionFee.ToText() + " " + rates.RatesField6 + " " + rates.RatesField7,
              expected);
  }
  FeeRates rates;
  frmBVX main;
  for (const char* file : {"2,3,1,1,1,A,B", "4,5,1,1,1,A,B"}) ReadFeeRates(file, rates, main);
  EXPECT_EQ(main.Option2[1].toolTip, "This donation is sent alone  Fee: $3");
}

TEST(Fees, ComputesTheCardFee) {
  const struct {
    const char *donation, *serviceFee, *rate, *fixed, *fee;
  } cases[] = {{"50", "2", "2.9", "0.3", "1.808"},
               {"0.01", "0", "2.9", "0.3", "0.3003"},
               {"33.33", "3", "3.9", "0.25", "1.6669"},
               {"100", "0", "0", "0.3", "3.2"},  // a rate or fixed part of 0: both are the defaults
               {"100", "0", "5", "0", "3.2"}};
  SessionValues values;
  FeeRates rates;
  for (const auto& [donation, serviceFee, rate, fixed, fee] : cases) {
    rates.CardRate = Currency::FromText(rate);
    rates.CardFixed = Currency::FromText(fixed);
    values.Donation = Currency::FromText(donation);
    values.BvxFee = Currency::FromText(serviceFee);
    EXPECT_EQ(ComputeCardFee(values, rates, false).ToText(), fee) << donation;
  }
  EXPECT_EQ(ComputeCardFee(values, rates, IsForeign("Canada")).ToText(), "4.2");
  EXPECT_EQ(ComputeCardFee(values, rates, IsForeign("U.S.A")).ToText(), "5.2");
  EXPECT_EQ(ComputeCardFee(values, rates, IsForeign("u.s.a.")).ToText(), "5.2");
}

}  // namespace
}  // namespace benevix
