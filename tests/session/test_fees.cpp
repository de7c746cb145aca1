#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "session/fees.h"

namespace benevix {
namespace {

std::string Text(const FeeRates& rates) {
  return std::to_string(rates.PoolFee) + " " + std::to_string(rates.StandAloneFee) + " " +
         rates.CardRate.ToText() + " " + rates.CardFixed.ToText() + " " +
         rates.SessionFee.ToText() + " " + rates.RatesField6 + " " + rates.RatesField7;
}

TEST(Fees, ReadsTheRatesFile) {
  const struct {
    std::string file;
    const char *rates, *poolTip;
  } cases[] = {{"4,5,3.1,0.4,6,A,B", "4 5 3.1 0.4 6 A B", "  Fee: $4"},
               {"2.5,3.5,,x,1e1,A,B,C", "2 4 0 0 10 A B,C", "  Fee: $2"},
               {"7", "7 0 0 0 0  ", "  Fee: $7"},
               {"-1, 2 , 1.00005", "-1 2 1.0001 0 0  ", "  Fee: $-1"},
               {"", "2 3 2.9 0.3 5 six seven", ""},
               {"1,2,3,4,5,A,<B", "2 3 2.9 0.3 5 six seven", ""},
               // Beyond their type: what was read so far stands.
               {"99999,4,1,1,1,A,B", "9 9 9 9 9 six seven", ""},
               {"4,5,1e99,1,1,A,B", "4 5 9 9 9 six seven", "  Fee: $4"},
               {"4,5,1,999999999999999999,1,A,B", "4 5 1 9 9 six seven", "  Fee: $4"}};
  for (const auto& [file, text, poolTip] : cases) {
    const Currency nine = Currency::FromWhole(9);
    FeeRates rates{9, 9, nine, nine, nine, "six", "seven"};
    frmBVX main;
    try {
      ReadFeeRates(file, rates, main);
    } catch (const RuntimeError&) {
    }
    EXPECT_EQ(Text(rates), text) << file;
    EXPECT_EQ(main.Option2[0].toolTip, frmBVX().Option2[0].toolTip + poolTip) << file;
  }
  FeeRates rates;
  frmBVX main;
  for (const char* file : {"2,3,1,1,1,A,B", "4,5,1,1,1,A,B"}) ReadFeeRates(file, rates, main);
  EXPECT_EQ(main.Option2[1].toolTip, "This donation is sent alone  Fee: $3");
}

TEST(Fees, ComputesTheCardFee) {
  const struct {
    const char *donation, *serviceFee, *rate, *fixed, *fee;
  } cases[] = {
      {"50", "2", "2.9", "0.3", "1.808"},    {"0", "2", "2.9", "0.3", "0.358"},
      {"0.01", "0", "2.9", "0.3", "0.3003"}, {"33.33", "3", "3.9", "0.25", "1.6669"},
      {"100", "0", "0", "0.3", "3.2"},  // a rate of 0: both are the defaults
      {"100", "0", "5", "0", "3.2"},         {"2147483647", "3", "2.9", "0.3", "62277026.15"}};
  for (const auto& [donation, serviceFee, rate, fixed, fee] : cases) {
    FeeRates rates;
    rates.CardRate = Currency::FromText(rate);
    rates.CardFixed = Currency::FromText(fixed);
    SessionValues values;
    values.Donation = Currency::FromText(donation);
    values.BvxFee = Currency::FromText(serviceFee);
    EXPECT_EQ(ComputeCardFee(values, rates, false).ToText(), fee) << donation;
  }
  SessionValues values;
  values.Donation = Currency::FromWhole(98);
  values.BvxFee = Currency::FromWhole(2);
  FeeRates rates;
  EXPECT_EQ(ComputeCardFee(values, rates, IsForeign("Canada")).ToText(), "4.2");
  EXPECT_EQ(ComputeCardFee(values, rates, IsForeign("U.S.A")).ToText(), "5.2");
  EXPECT_EQ(ComputeCardFee(values, rates, IsForeign("u.s.a.")).ToText(), "5.2");
  values.Donation = Currency::FromUnits(std::numeric_limits<std::int64_t>::max() / 2);
  EXPECT_THROW(ComputeCardFee(values, rates, false), RuntimeError);
}

}  // namespace
}  // namespace benevix
