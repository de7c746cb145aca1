#include <gtest/gtest.h>

#include "../boxes_of_a_test.h"
#include "../platform/surroundings_of_a_test.h"
#include "base/runtime_error.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_shell.h"
#include "platform/linux/random_generator.h"
#include "records/history.h"
#include "records_of_a_test.h"

namespace benevix {
namespace {

// What a history never asks for.
struct Unasked : Registry, HttpClient, Waits, Printer {
  std::unique_ptr<RegistryKey> OpenKey(Root, const std::string&, Access) override { return {}; }
  std::unique_ptr<RegistryKey> CreateKey(Root, const std::string&) override { return {}; }
  ResultCode DeleteKey(Root, const std::string&) override { return kFailed; }
  std::string OpenURL(const std::string&, const HttpOptions&) override { return {}; }
  void Begin() override {}
  void End() override {}
  void DoEvents() override {}
  void PrintLine(int, const std::string&) override {}
  void EndDoc() override {}
};

class HistoryTest : public testing::Test {
 protected:
  HistoryTest() {
    desk_.Add("frmInfo", viewer_);
    surroundings_.info.folder = folder_ / ".";
    std::filesystem::create_directory(folder_ / "Resources");
  }
  std::string Write(const std::string& id) {
    ListView list = ListOfATest();
    PutDonation(list, 2, "5.00", "2,5.00,Pool,John Doe,0,1");
    std::string heading = "old";
    history_.WriteHistory({id, "7.50", Currency::FromWhole(5), Currency::FromWhole(7)}, list,
                          heading);
    return heading;
  }
  static std::string Record(const std::string& id) {
    const std::string indent(13, ' ');
    return "-- 03-05-2003 @ 12:34\r\n" + indent + "Transaction ID: " + id + " - Budget: $5\r\n" +
           indent +
           "Organization: Org 2 -  Amount: $5.00 -  From: John Doe -  Method: Pool"
           " - Send Proof: [X]\r\n" +
           indent + "Payment: $7.50 - BVX Fee: $ 2. - CC Fee: $.5\r\n\r\n";
  }

  TempFolder folder_;
  std::string path_ = folder_ / "Resources/history.dat";
  Unasked unasked_;
  BoxesOfATest boxes_;
  ClockOfATest clock_;
  RandomGenerator random_;
  LinuxShell shell_;
  LinuxFiles files_;
  Surroundings surroundings_{{},     unasked_, unasked_, boxes_, unasked_,
                             clock_, random_,  shell_,   files_, unasked_};
  RunValues run_;
  Messages messages_{boxes_, surroundings_.info, run_};
  EventTable events_;
  Desk desk_{events_};
  frmInfo viewer_;
  History history_{surroundings_, messages_, desk_, viewer_};
};

TEST_F(HistoryTest, RecordsAreAppended) {
  EXPECT_EQ(Write("A"), "A,7.50,03-05-2003 @ 12:34");
  Write("B");
  history_.WritePending();
  EXPECT_EQ(Got(path_), Record("A") + Record("B"));
  EXPECT_TRUE(boxes_.shown.empty());
}

TEST_F(HistoryTest, WhatCannotBeWrittenIsToldKeptAndTriedAgain) {
  std::filesystem::create_directory(path_);  // in the file's place
  for (const char* id : {"A", "B"}) {
    EXPECT_EQ(Write(id), std::string(id) + ",7.50,03-05-2003 @ 12:34");
    EXPECT_EQ(boxes_.shown.back().icon, BoxIcon::Critical);
    EXPECT_NE(boxes_.shown.back().text.find("history.dat: "), std::string::npos);
  }
  EXPECT_EQ(boxes_.shown.size(), 2U);
  std::filesystem::remove(path_);
  Write("C");
  EXPECT_EQ(Got(path_), Record("A") + Record("B") + Record("C"));
  std::filesystem::rename(path_, folder_ / "kept");
  std::filesystem::create_directory(path_);
  Write("D");
  std::filesystem::remove(path_);
  history_.WritePending();
  history_.WritePending();
  EXPECT_EQ(Got(path_), Record("D"));
  EXPECT_EQ(boxes_.shown.size(), 3U);
}

TEST_F(HistoryTest, AFullDiskLeavesWholeRecordsOnly) {
  Write("A");
  FillDisk(Record("A").size() + 10);
  Write("B");
  EmptyDisk();
  EXPECT_EQ(Got(path_), Record("A"));
  EXPECT_EQ(boxes_.shown.size(), 1U);
  Write("C");
  EXPECT_EQ(Got(path_), Record("A") + Record("B") + Record("C"));
}

TEST_F(HistoryTest, ShowsTheFileOnceThereIsOne) {
  history_.ShowHistory();
  EXPECT_FALSE(desk_.IsShown(viewer_));
  Write("A");
  history_.ShowHistory();
  EXPECT_TRUE(desk_.IsShown(viewer_));
  EXPECT_EQ(viewer_.caption, "Donation History");
  EXPECT_TRUE(viewer_.wb1.address.ends_with("/Resources/history.dat"));
  EXPECT_FALSE(viewer_.Picture1.visible);
}

}  // namespace
}  // namespace benevix
