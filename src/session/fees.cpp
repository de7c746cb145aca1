#include "session/fees.h"

#include <string_view>

#include "base/lines.h"
#include "base/number_text.h"
#include "base/text.h"

namespace benevix {
namespace {

void AddFeeToToolTip(OptionButton& option, std::int16_t fee) {
  if (option.toolTip.find("Fee") == std::string::npos) {
    option.toolTip += "  Fee: $" + std::to_string(fee);
  }
}

}  // namespace

bool IsForeign(const std::string& country) {
  return UpperCase(country) != "U.S.A.";
}

FeeRates NextCardRates(FeeRates rates, bool foreign) {
  if (rates.CardRate == Currency() || rates.CardFixed == Currency()) {
    rates.CardRate = FeeRates().CardRate;
    rates.CardFixed = FeeRates().CardFixed;
  }
  if (foreign) rates.CardRate += Currency::FromWhole(1);
  return rates;
}

Currency ServiceFeeOf(const FeeRates& rates, bool pool) {
  return Currency::FromWhole(pool ? rates.PoolFee : rates.StandAloneFee);
}

Currency CardFeeOf(Currency donation, Currency serviceFee, const FeeRates& rates) {
  const Currency product = Product(donation + serviceFee, rates.CardRate);
  return Currency::FromDouble(product.ToDouble() / 100 + rates.CardFixed.ToDouble());
}

Currency ComputeCardFee(const SessionValues& values, FeeRates& rates, bool foreign) {
  // Stored on purpose: the rate of a foreign donor rises with each computation.
  rates = NextCardRates(rates, foreign);
  return CardFeeOf(values.Donation, values.BvxFee, rates);
}

void ReadFeeRates(const std::string& text, FeeRates& rates, frmBVX& main) {
  if (text.empty() || text.find('<') != std::string::npos) {
    FeeRates defaults;
    defaults.RatesField6 = rates.RatesField6;
    defaults.RatesField7 = rates.RatesField7;
    rates = defaults;
    return;
  }
  std::string_view rest = text;
  rates.PoolFee = ToInt16(Val(CutField(rest, ',')));
  AddFeeToToolTip(main.Option2[delivery_option::kPool], rates.PoolFee);
  rates.StandAloneFee = ToInt16(Val(CutField(rest, ',')));
  AddFeeToToolTip(main.Option2[delivery_option::kStandAlone], rates.StandAloneFee);
  rates.CardRate = Currency::FromText(CutField(rest, ','));
  rates.CardFixed = Currency::FromText(CutField(rest, ','));
  rates.PublishedCardRate = rates.CardRate;
  rates.PublishedCardFixed = rates.CardFixed;
  rates.SessionFee = Currency::FromText(CutField(rest, ','));
  rates.RatesField6 = CutField(rest, ',');
  rates.RatesField7 = rest.substr(0, rest.find_first_of("\r\n"));  // the file is one line
}

}  // namespace benevix
