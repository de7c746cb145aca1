#include <gtest/gtest.h>
#include <thread>

#include "../boxes_of_a_test.h"
#include "base/lines.h"
#include "database/organization_list.h"
#include "loopback_server.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_shell.h"
#include "platform/linux/random_generator.h"
#include "platform/qt/qt_http_client.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/settings_file.h"
#include "print_service.h"
#include "printed_pages.h"
#include "records/printing.h"

namespace benevix {
namespace {

class StandingClock : public Clock {
 public:
  [[nodiscard]] DateTime Now() const override { return {2003, 3, 5, 12, 34, 56.25}; }
};

class NoWaits : public Waits {
 public:
  void Begin() override {}
  void End() override {}
  void DoEvents() override {}
};

// Answers what a finalization asks for.
class ServerOfATest {
 public:
  ServerOfATest() {
    server_.Get("/53rv3r/status.txt", [](const auto&, auto& answer) { Say(answer, "server ok"); });
    server_.Get("/53rv3r/ctact.dat", [](const auto&, auto& answer) { Say(answer, "mail?,us"); });
    server_.Get("/mail", [](const auto&, auto& answer) { Say(answer, "Thank You"); });
    server_.Bind(0);
    serving_ = std::thread([this] { server_.listen_after_bind(); });
    while (!server_.is_running()) std::this_thread::yield();  // a stop before would be lost
  }
  ~ServerOfATest() {
    server_.stop();
    serving_.join();
  }
  ServerOfATest(const ServerOfATest&) = delete;
  ServerOfATest& operator=(const ServerOfATest&) = delete;
  [[nodiscard]] const std::string& Address() const { return server_.Address(); }

 private:
  static void Say(httplib::Response& answer, const char* text) {
    answer.set_content(text, "text/plain");
  }
  LoopbackServer server_;
  std::thread serving_;
};

// The rooms of a finalized session, printing on the real printer.
class ReportsTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!service.Missing().empty()) GTEST_SKIP() << "no print service: " << service.Missing();
    service.SetPrinter("Letter");
    info.folder = folder / "program";
    std::filesystem::create_directories(info.folder + "/Resources");
    info.deployment.serverBase = server.Address();
    info.deployment.product = "Benevix";
    info.deployment.copyright = "\xA9 2003 Benevix";
    surroundings.info = info;
    desk.Add("frmBVX", main);
    desk.Add("frmInfo", viewer);
    desk.Add("frmPayOpt", payment);
    desk.Add("frmWait", wait);
    Choose(payment.Option1, payment::kCreditCard);
    for (TextBox& box : contact.Text1) box.text = "x";
  }

  void Give(int row, const std::string& name, const std::string& amount, const std::string& flags) {
    main.ListView1.SetSubItem(row, column::kOrganization, name);
    main.ListView1.SetSubItem(row, column::kAmount, amount);
    main.ListView1.SetSubItem(row, column::kFrom, "John Doe");
    main.ListView1.SetSubItem(row, column::kPool, "Stand Alone");
    main.ListView1.SetSubItem(row, column::kRecord, std::to_string(row) + "/" + flags);
    values.TotalDonated += Currency::FromText(amount);
    values.Budget = values.TotalDonated;
  }

  [[nodiscard]] std::string HistoryFile() const { return info.Resource("history.dat"); }

  void ExpectHead(PrintedPages& pages, const std::string& title) const {
    pages.ExpectNothingCut();
    pages.ExpectLine(40, " -- Benevix  \xA9 2003 Benevix -- ");
    pages.ExpectLine(1, "");
    pages.ExpectLine(1, "");
    pages.ExpectLine(50, "Benevix - " + title);
    pages.ExpectLine(1, "");
    pages.ExpectLine(1, "");
  }
  void ExpectTail(PrintedPages& pages) const {
    pages.ExpectLine(1, "");
    pages.ExpectLine(
        1, " ------------------------- End Doc ------ 03-05-2003 @ 12:34:56 ------------- " +
               info.deployment.serverBase + " ------------- ");
    pages.ExpectEnd();
  }

  PrintService& service = PrintService::Instance();
  TempFolder folder;
  ServerOfATest server;
  NoWaits waits;
  BoxesOfATest boxes;
  StandingClock clock;
  RandomGenerator random;
  LinuxShell shell;
  LinuxFiles files;
  QtPrinter printer;
  QtHttpClient http{waits};
  SettingsFile registry{folder / "user.conf", folder / "machine.conf"};
  ProgramInfo info;
  Surroundings surroundings{info,  registry, http,  boxes, waits,
                            clock, random,   shell, files, printer};

  frmBVX main;
  frmPayOpt payment;
  frmPersInfo contact;
  frmInfo viewer;
  frmWait wait;
  SessionValues values;
  FeeRates rates;
  RunValues run;
  EventTable events;
  Desk desk{events};
  ServerFiles serverFiles{surroundings, main, run};
  SettingsStore settings{registry};
  TextCodec codec{"benevix"};
  Messages messages{boxes, info, run};
  History history{surroundings, messages, desk, viewer};
  Finalization finalization{{main, payment, contact, viewer},
                            values,
                            rates,
                            run,
                            desk,
                            serverFiles,
                            settings,
                            codec,
                            messages,
                            history,
                            surroundings};
  Printing printing{surroundings, wait, desk, main, finalization};
};

// The history file tells the same lines in its own way: one empty line behind each record.
TEST_F(ReportsTest, ASessionIsPrintedAsTheHistoryTellsIt) {
  Give(2, "Children First", "100.00", "000");
  Give(3, "An Organization With Quite a Long Name, So That Its Line Is Wider Than the Paper",
       "25.50", "101");
  Give(70, "Caf\xE9 des Amis", "4.50", "001");
  finalization.Command1_Click();
  ASSERT_TRUE(main.mnuPrntSession.enabled);
  printing.mnuPrntSession_Click();
  EXPECT_TRUE(desk.IsShown(wait));
  PrintedPages pages(service.Printed());
  ExpectHead(pages, "Current Session");
  const std::string record = Got(HistoryFile());
  std::vector<std::string_view> lines = Lines(record);
  ASSERT_EQ(lines.size(), 7U) << record;
  EXPECT_NE(lines[3].find("Tax Certificate: [X]"), std::string_view::npos);
  lines.pop_back();
  for (const std::string_view line : lines) pages.ExpectLine(1, std::string(line));
  ExpectTail(pages);
}

TEST_F(ReportsTest, AHistoryOfSeveralPages) {
  Give(2, "Children First", "100.00", "101");
  for (int row = 3; row < 12; ++row) {
    Give(row, "Organization " + std::string(static_cast<std::size_t>(row * 8), 'o'), "1.25", "001");
  }
  for (int session = 0; session < 20; ++session) finalization.Command1_Click();
  std::string text = Got(HistoryFile());
  text += std::string(3000, 'x') + "\r\n\nthe last line has no end";
  Put(HistoryFile(), text);
  printing.mnuPrtHistory_Click();
  PrintedPages pages(service.Printed());
  EXPECT_GE(pages.Count(), 5U);
  ExpectHead(pages, "Sessions History");
  for (const std::string_view line : Lines(text)) pages.ExpectLine(7, std::string(line));
  ExpectTail(pages);
}

TEST_F(ReportsTest, AMissingHistoryEndsThePrintoutAndTheNextOneStandsAlone) {
  printing.mnuPrtHistory_Click();
  PrintedPages pages(service.Printed());
  ExpectHead(pages, "Sessions History");
  pages.ExpectEnd();
  printing.PrintMessage("me@here.org", "you@there.org", "Thanks", "First line\r\n\r\nThird line");
  PrintedPages message(service.Printed(2));
  message.ExpectNothingCut();
  message.ExpectLine(40, " -- Benevix  \xA9 2003 Benevix -- ");
  for (const char* line : {"", "", "From: me@here.org", "To: you@there.org", "Subject: Thanks", "",
                           "First line", "", "Third line"}) {
    message.ExpectLine(1, line);
  }
  ExpectTail(message);
}

TEST_F(ReportsTest, WithoutAPrinterNothingHappens) {
  service.RemovePrinters();
  printing.mnuPrtHistory_Click();
  printing.mnuPrntSession_Click();
  printing.PrintMessage("", "", "", "");
  EXPECT_TRUE(boxes.shown.empty());
}

}  // namespace
}  // namespace benevix
