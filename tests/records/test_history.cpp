#include <gtest/gtest.h>

#include "../platform/temp_files.h"
#include "../program_fixture.h"
#include "../sample_list.h"
#include "base/runtime_error.h"
#include "records/history.h"

namespace benevix {
namespace {

class HistoryTest : public testing::Test, public ProgramFixture {
 protected:
  SessionRecord Write(const std::string& id) {
    ListView list = SampleList();
    SetDonation(list, 2, "2,5.00,Pool,John Doe,0,1");
    return history_.WriteHistory({id, "7.50", Currency::FromWhole(5), Currency::FromWhole(7), {}},
                                 list);
  }
  static std::string Record(const std::string& id) {
    const std::string indent(13, ' ');
    return "-- 03-05-2003 @ 12:34\r\n" + indent + "Transaction ID: " + id + " - Budget: $5\r\n" +
           indent +
           "Organization: Org 2 -  Amount: $5.00 -  From: John Doe -  Method: Pool"
           " - Send Proof: [X]\r\n" +
           indent + "Payment: $7.50 - BVX Fee: $ 2. - CC Fee: $.5\r\n\r\n";
  }

  std::string path_ = world.info.Resource("history.dat").Utf8();
  Environment environment_ = program.TheEnvironment();
  InformationViewer viewer_{program.TheForms().Get<frmInfo>(), program.TheDesk(),
                            program.TheMessages(), environment_};
  History history_{environment_, program.TheMessages(), viewer_, program.TheForms().Get<frmBVX>()};
};

TEST_F(HistoryTest, FailedWritesAreReportedKeptAndRetried) {
  // A record that cannot be told leaves nothing of itself behind.
  EXPECT_THROW(history_.WriteHistory({"X", "1e300", Currency(), Currency(), {}}, ListView()),
               RuntimeError);
  EXPECT_EQ(HeadingLine(Write("A").time), "-- 03-05-2003 @ 12:34");
  std::filesystem::rename(path_, path_ + ".kept");
  std::filesystem::create_directory(path_);  // in the file's place
  for (const char* id : {"B", "C"}) {
    Write(id);
    EXPECT_EQ(boxes.shown.back().icon, BoxIcon::Critical);
    EXPECT_NE(boxes.shown.back().text.find("history.dat: "), std::string::npos);
  }
  std::filesystem::remove(path_);
  std::filesystem::rename(path_ + ".kept", path_);
  Write("D");
  EXPECT_EQ(ReadFile(path_), Record("A") + Record("B") + Record("C") + Record("D"));
  LimitFileSize(std::filesystem::file_size(path_) + 10);
  Write("E");
  EXPECT_NE(boxes.shown.back().text.find("written with the next one"), std::string::npos);
  history_.WritePending();  // as at the end of the program, when none follows
  EXPECT_NE(boxes.shown.back().text.find("The program ends"), std::string::npos);
  LimitFileSize();
  EXPECT_EQ(ReadFile(path_), Record("A") + Record("B") + Record("C") + Record("D"));
  history_.WritePending();
  history_.WritePending();
  EXPECT_TRUE(ReadFile(path_).ends_with(Record("D") + Record("E")));
  EXPECT_EQ(boxes.shown.size(), 4U);
}

}  // namespace
}  // namespace benevix
