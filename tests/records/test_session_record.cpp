#include <gtest/gtest.h>

#include "../sample_list.h"
#include "base/runtime_error.h"
#include "records/session_record.h"

namespace benevix {
namespace {

const std::string kIndent(13, ' ');

TEST(SessionRecord, MarksTheOptionsOfEachRow) {
  ListView list = SampleList();
  SetDonation(list, 5, "5,5.00,Pool,John Doe,1,1");
  SetDonation(list, 2, "2,5.00,Pool,John Doe,0,0");
  SetDonation(list, 4, "4,5.00,Pool,John Doe,1,0");
  SetDonation(list, 3, "3,5.00,Pool,John Doe,0,1");
  SetDonation(list, 6, "1");  // shorter than its flags
  SetDonation(list, 7, "");
  const std::string proof = " - Send Proof: [X]", certificate = " - Tax Certificate: [X]";
  const auto line = [](const std::string& row) {
    return kIndent + "Organization: Org " + row +
           " -  Amount: $5.00 -  From: John Doe -  Method: Pool";
  };
  const std::vector<std::string> lines = {line("2"), line("3") + proof, line("4") + certificate,
                                          line("5") + proof + certificate, line("6") + proof};
  EXPECT_EQ(OrganizationLines(list), lines);
}

TEST(SessionRecord, FormatsBudgetAndFees) {
  const struct {
    const char *budget, *charged, *amount, *payment;
  } cases[] = {{"100", "105", "108.35", "108.35 - BVX Fee: $ 5. - CC Fee: $3.35"},
               {"100.5", "100.5", "101", "101 - BVX Fee: $ . - CC Fee: $.5"},
               {"99.99", "101.99", "50.00", "50.00 - BVX Fee: $ 2. - CC Fee: $-51.99"}};
  for (const auto& [budget, charged, amount, payment] : cases) {
    const SessionRecord record{
        "ID", amount, Currency::FromText(budget), Currency::FromText(charged), {}};
    EXPECT_EQ(TransactionLine(record), kIndent + "Transaction ID: ID - Budget: $" + budget);
    EXPECT_EQ(PaymentLine(record), kIndent + "Payment: $" + payment);
  }
  EXPECT_THROW(PaymentLine({"ID", "1e300", Currency(), Currency(), {}}), RuntimeError);
}

}  // namespace
}  // namespace benevix
