// The server's small files.

#include "base/runtime_error.h"
#include "served.h"
#include "server/news.h"
#include "server/organization_contacts.h"
#include "server/year_to_date.h"
#include "session/fees.h"
#include "targets.h"

namespace benevix {

void CheckRates(std::string_view input) {
  Served served(input);
  served.server.LoadFeeRates();
  const FeeRates& rates = served.rates;
  Require(rates.RatesField7.find_first_of("\r\n") == std::string::npos, "an account is one line");
  Require(rates.RatesField6.find(',') == std::string::npos, "an account is one field");
  try {
    const Currency fee = ServiceFeeOf(rates, true);
    // A fee of many digits is rounded.
    const Currency fixed = Currency::FromDouble(rates.CardFixed.ToDouble());
    Require(CardFeeOf(Currency(), Currency(), rates) == fixed, "no donation, no percents");
    CardFeeOf(Currency::FromWhole(100), fee, NextCardRates(rates, true));
  } catch (const RuntimeError&) {
    // A rate may be too large for a donation.
  }
}

void CheckNews(std::string_view input) {
  Served served(input);
  std::size_t downloads = 0;
  News news(served.main, served.viewer, served.server, served.messages, served.world.info,
            [&] { ++downloads; });
  news.LoadNews();
  const std::string& shown = served.main.Label12.tag;
  Require(served.main.Timer2.enabled == !shown.empty(), "the line blinks while there is news");
  Require(shown.empty() || input.starts_with(shown), "the news is what the server says");
  Require(shown.find('<') == std::string::npos, "an error page is no news");
  news.Label12_Click();
  Require(downloads <= served.boxes.shown.size(), "nothing is downloaded unasked");
}

void CheckYearToDate(std::string_view input) {
  Served served(input);
  YearToDate amounts(served.environment, served.server, served.run, served.main, served.yearToDate,
                     served.desk);
  amounts.DownloadYtd();
  amounts.iLbl_Click();
  const bool known = served.main.Shape2.fillColor == colors::kGreen;
  const std::string id = served.main.ListView1.SelectedText(column::kId);
  const bool named = ("\n" + std::string(input)).find("\n" + id + ",") != std::string::npos;
  Require(named || !known, "amounts are of the organization that is selected");
  for (const auto& amount : served.yearToDate.Label2) {
    Require(!known || amount.caption.size() > 2, "what is not known is N/A");
  }
  amounts.RemoveYtd();
}

void CheckOrganizationContacts(std::string_view input) {
  Served served(input);
  OrganizationContacts contacts(served.server, served.messages);
  std::string first, second;
  const auto result = contacts.LookupContacts("42", first, second);
  const std::string record = "42:" + first + ";" + second + "\n";
  Require(result != OrganizationContacts::Result::Found || input.find(record) != input.npos,
          "the addresses are those of the ID");
}

}  // namespace benevix
