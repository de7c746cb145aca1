#include <QDesktopServices>
#include <QPushButton>
#include <QSslServer>
#include <QSslSocket>
#include <csignal>
#include <unistd.h>

#include "../test_certificate.h"
#include "page_viewer_test.h"

namespace benevix {
namespace {

const char* const kSandboxVariable = "QTWEBENGINE_DISABLE_SANDBOX";

// Takes the place of the desktop, which opens the addresses that the program hands on.
class Desktop : public QObject {
  Q_OBJECT
 public:
  explicit Desktop(const char* scheme) : scheme_(scheme) {
    QDesktopServices::setUrlHandler(scheme_, this, "Open");
  }
  ~Desktop() override { QDesktopServices::unsetUrlHandler(scheme_); }
  Q_SLOT void Open(const QUrl& url) { opened = url; }

  QUrl opened;

 private:
  QString scheme_;
};

TEST_F(PageViewerTest, WebPageIsShownUnderItsOwnHost) {
  site_.Page("/a%20b/%C3%A9", "<h1>Payment</h1>");
  site_.Page("/other", "<p>Other host</p>");
  const std::string other = "http://localhost:" + site_.Port() + "/other";
  site_.Put("/away", {.status = 302, .headers = {{"Location", other}}});
  site_.Open();
  Show(site_.Home() + "a b/%C3%A9?name=Caf\xE9 1&x=#2");
  EXPECT_TRUE(ShowsText("Payment"));
  EXPECT_TRUE(site_.WasAsked("/a%20b/%C3%A9?name=Caf%E9%201&x=%232 "));
  EXPECT_EQ(hostLine_->text().toStdString(), "http://" + site_.Host());
  Show(site_.Home() + "away");
  EXPECT_TRUE(ShowsText("Other host"));
  EXPECT_EQ(hostLine_->text().toStdString(), "http://localhost:" + site_.Port());
  host_.Clear();
  EXPECT_EQ(Engine("QWebEngineView"), nullptr);
  EXPECT_EQ(hostLine_->text(), "");
}

TEST_F(PageViewerTest, NoPageHidesWhereItComesFrom) {
  site_.Page("/frame", "<script>function hide() { top.location = 'about:blank'; }</script>");
  site_.Page("/", "<p>page</p><iframe src='/frame'></iframe>");
  site_.Open();
  for (const QString way :
       {"location = 'about:blank'", "window.open('about:blank', '_self')", "frames[0].hide()",
        "location = 'data:text/html,Bank'", "location = \"javascript:'Bank'\""}) {
    Show(site_.Home());
    EXPECT_TRUE(Becomes("frames[0].hide != undefined", "true"));
    Value(way);
    QTest::qWait(200);
    const bool isClosed = Notice().contains("hide where it comes from");
    EXPECT_EQ(isClosed, way.contains("blank") || way.contains("hide"));
    EXPECT_EQ(hostLine_->text().toStdString(), "http://" + site_.Host());
    EXPECT_TRUE(isClosed || Value("location.host").toStdString() == site_.Host());
  }
}

TEST_F(PageViewerTest, NoRedirectLeadsFromHttpsToHttp) {
  const char* const flags = "QTWEBENGINE_CHROMIUM_FLAGS";
  if (!qEnvironmentVariableIsSet(flags)) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(flags, "--ignore-certificate-errors");
    return RunAgain(QCoreApplication::applicationFilePath(), environment);
  }
  SecureSite safe;
  site_.Page("/", "<p>http</p>");
  site_.Open();
  safe.Page("/safe", "<p>https</p>");
  safe.Redirect("/on", "https://" + safe.Host() + "/safe");
  safe.Redirect("/down", site_.Home());
  Show("https://" + safe.Host() + "/on");
  EXPECT_TRUE(ShowsText("https"));
  EXPECT_EQ(hostLine_->text().toStdString(), "https://" + safe.Host());
  host_.Navigate(PageAt("https://" + safe.Host() + "/down"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Notice().contains("not opened here"); }));
  EXPECT_FALSE(site_.WasAsked("/ "));
}

TEST_F(PageViewerTest, NothingIsKept) {
  site_.Page("/", "<script>document.cookie='visit=1;max-age=9999';localStorage.x=1</script>");
  site_.Page("/again", "<p>again</p>");
  site_.Open();
  Show(site_.Home());
  EXPECT_TRUE(Becomes("localStorage.x", "1"));
  Value("location.href='/again'");
  EXPECT_TRUE(ShowsText("again"));
  EXPECT_TRUE(site_.WasAsked("/again visit=1"));  // a payment page needs its cookie
  host_.Clear();
  Show(site_.Home() + "again?2");
  EXPECT_TRUE(ShowsText("again"));
  EXPECT_TRUE(site_.WasAsked("/again?2 "));
  EXPECT_EQ(Value("String(localStorage.x)"), "undefined");
}

TEST_F(PageViewerTest, LocalPageOpensAtItsAnchor) {
  const QByteArray far = "<p style='height:3000px'>far</p>";
  const std::string file = Put(QString::fromUtf8("C# é\\Ω/my help.html"),
                               far + "<A NAME=\"Getting%20Started\">Start</A>" + far +
                                   "<A NAME=\"Fees \xE9\">Fees</A>" + far);
  const QString top = "Math.round(document.anchors[%1].getBoundingClientRect().top)";
  Show(file, "Getting Started");
  EXPECT_TRUE(Becomes(top.arg(0), "0"));
  EXPECT_EQ(hostLine_->text(), "my help.html");
  for (int i = 0; i < 2; ++i) {  // the second time with the page shown already
    Show(file, "Fees \xE9");
    EXPECT_TRUE(Becomes(top.arg(1), "0"));
    QTest::keyClick(window_.focusWidget(), Qt::Key_Home);
    EXPECT_TRUE(Becomes("window.scrollY", "0"));
  }
}

TEST_F(PageViewerTest, NeighborsAreFollowedAndLeadBack) {
  const std::string file = Put("first.html", "<a style='display:block' href='next.html#end'>1</a>");
  Put("next.html", "<a style='display:block' href='../out.html'>2</a>");
  bool canGoBack = false;
  host_.onCanGoBackChanged = [&](bool can) { canGoBack = can; };
  Show(file);
  ClickAt(20, 15);
  EXPECT_TRUE(ShowsText("2"));
  EXPECT_EQ(hostLine_->text(), "next.html");
  EXPECT_TRUE(QTest::qWaitFor([&] { return canGoBack; }));
  ClickAt(20, 15);  // nothing outside the folder
  QTest::qWait(300);
  EXPECT_TRUE(ShowsText("2"));
  host_.GoBack();
  EXPECT_TRUE(ShowsText("1"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !canGoBack; }));
}

TEST_F(PageViewerTest, TextFileIsShownAsItStands) {
  // Bytes that look like another encoding, like data, or like a page.
  const QByteArray record =
      "<html><b>-- 1/2/2024 @ 10:00 \x80 \xD0\xD1\xD2 \x01\r\n      two  blanks";
  Show(Put("history.dat", record));
  EXPECT_TRUE(
      ShowsText(QString::fromUtf8("<html><b>-- 1/2/2024 @ 10:00 € ÐÑÒ \x01\n      two  blanks")));
  EXPECT_EQ(Value("document.contentType+document.characterSet"), "text/htmlwindows-1252");
  EXPECT_EQ(hostLine_->text(), "history.dat");
  const int count = 40'000;
  Show(Put("long.dat", QByteArray("12345 organization 10.00\r\n").repeated(count)));
  EXPECT_TRUE(Becomes("document.body.textContent.length", QString::number(count * 25)));
}

TEST_F(PageViewerTest, PageOfTheWebCannotReadFiles) {
  const std::string text = Put("secret.dat", "secret");
  const std::string addresses[] = {"file://" + Put("secret.html", "<p>secret</p>"),
                                   "benevix-text://" + text};
  site_.Page("/", "<a href='" + addresses[0] + "' style='display:block'>file</a><iframe src='" +
                      addresses[0] + "'></iframe><script>var read=''; for (const a of ['" +
                      addresses[0] + "','" + addresses[1] +
                      "']) fetch(a).then(r=>r.text()).then(t=>read+=t,()=>read+='no ');</script>");
  site_.Open();
  Show(text);
  EXPECT_TRUE(ShowsText("secret"));
  Show(site_.Home());
  EXPECT_TRUE(Becomes("read", "no no "));
  ClickAt(20, 15);
  for (const std::string& address : addresses) {
    Value("location.href='" + QString::fromStdString(address) + "'");
    Value("frames[0].location.href='" + QString::fromStdString(address) + "'");
  }
  QTest::qWait(500);
  EXPECT_EQ(Value("location.protocol+frames.length"), "http:1");
  EXPECT_EQ(hostLine_->text().toStdString(), "http://" + site_.Host());
}

TEST_F(PageViewerTest, WindowsDownloadsAndDevicesAreRefused) {
  site_.Page("/", R"(<a href='/next' target='_blank' style='display:block'>next</a>
      <script>var location_='?';
      window.open('/popup');
      navigator.geolocation.getCurrentPosition(()=>location_='found',e=>location_=e.code)
      </script>)");
  site_.Page("/next", "<p>next</p>");
  site_.Page("/popup", "<p>pop-up</p>");
  site_.Put("/file", {.contentType = "application/octet-stream",
                      .body = "MZ",
                      .headers = {{"Content-Disposition", "attachment; filename=virus.exe"}}});
  site_.Open();
  Show(site_.Home());
  EXPECT_TRUE(Becomes("location_", "1"));  // permission denied
  Value("location.href='/file'");
  QTest::qWait(500);
  EXPECT_TRUE(site_.WasAsked("/file "));
  EXPECT_FALSE(site_.WasAsked("/popup "));
  EXPECT_EQ(Value("document.links.length"), "1");  // the page before the download is still shown
  EXPECT_TRUE(QDir::home().entryList({"virus*", "Downloads"}).isEmpty());
  ClickAt(20, 15);
  EXPECT_TRUE(ShowsText("next"));
  EXPECT_EQ(QApplication::topLevelWidgets().size(), 1);
}

TEST_F(PageViewerTest, SiteWithoutATrustedCertificateIsNotAsked) {
  const TestCertificate certificate;
  QSslServer falseSite;
  falseSite.setSslConfiguration(certificate.Configuration());
  ASSERT_TRUE(falseSite.listen(QHostAddress::LocalHost));
  int handshakes = 0, asked = 0;
  QObject::connect(&falseSite, &QSslServer::startedEncryptionHandshake, [&](QSslSocket* socket) {
    ++handshakes;
    QObject::connect(socket, &QSslSocket::readyRead, [&] { ++asked; });
  });
  Show("https://127.0.0.1:" + std::to_string(falseSite.serverPort()) + "/");
  EXPECT_TRUE(Becomes("document.body.innerText.includes('CERT')", "true"));
  EXPECT_GT(handshakes, 0);
  EXPECT_EQ(asked, 0);
}

TEST_F(PageViewerTest, PageThatBreaksDownLeavesANotice) {
  const std::string file = Put("page.html", "<p>well</p>");
  Show(file);
  const auto process = Engine("QWebEnginePage")->property("renderProcessPid").toInt();
  ASSERT_GT(process, 1);
  kill(process, SIGKILL);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Notice().contains("stopped working"); }));
  Show(file);
  EXPECT_EQ(Notice(), "");
  EXPECT_TRUE(ShowsText("well"));
}

TEST_F(PageViewerTest, MailLinkGoesToTheMailProgram) {
  const Desktop desktop("mailto");
  Show(Put("page.html", "<a href='mailto:a@host.example' style='display:block'>mail</a>"));
  ClickAt(20, 15);
  EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.opened.path() == "a@host.example"; }));
  EXPECT_TRUE(ShowsText("mail"));
}

TEST_F(PageViewerTest, PagesMayEndAtAnyTime) {
  const std::string file = Put("page.html", "<p>last</p>");
  for (int i = 0; i < 10; ++i) {
    host_.Navigate(PageAt(file));
    QTest::qWait(20 * i);
  }
  EXPECT_TRUE(ShowsText("last"));
  host_.Navigate(PageAt(file));
  delete container_;
  delete hostLine_;
  QTest::qWait(300);
}

TEST_F(PageViewerTest, WhatIsNoPageIsNamed) {
  for (const std::string address : {"page.html", "ftp://x/y", "http:///x", "/no/such.html"}) {
    host_.Navigate(PageAt(address));
    EXPECT_TRUE(Notice().contains(QString::fromStdString(address))) << address;
    EXPECT_EQ(hostLine_->text(), "");
  }
  host_.Navigate({});
  EXPECT_EQ(Notice(), "");
}

TEST_F(PageViewerTest, NoEngineForTheAdministrator) {
  if (geteuid() != 0) GTEST_SKIP();
  if (qEnvironmentVariableIsSet(kSandboxVariable)) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(kSandboxVariable);
    return RunAgain(QCoreApplication::applicationFilePath(), environment);
  }
  host_.Navigate(Page::Web("https://host.example/pay?a=b c"));
  EXPECT_TRUE(Notice().contains("administrator"));
  EXPECT_EQ(hostLine_->text(), "https://host.example");
  QFile maps("/proc/self/maps");
  ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
  EXPECT_FALSE(maps.readAll().contains("WebEngine"));
  const std::string help = Put("help.html", "<p>help</p>");
  host_.Navigate(PageAt(help));
  const Desktop desktop("file");
  container_->findChild<QPushButton*>()->click();
  EXPECT_EQ(desktop.opened.toLocalFile().toStdString(), help);
}

TEST_F(PageViewerTest, NoEngineWithoutThePlugIn) {
  const QString program = QCoreApplication::applicationFilePath();
  if (QFile::exists(QCoreApplication::applicationDirPath() + "/plugins")) {
    const QString alone = folder_.filePath("alone");
    ASSERT_TRUE(QFile::copy(program, alone));
    return RunAgain(alone, QProcessEnvironment::systemEnvironment());
  }
  host_.Navigate(Page::Web("http://host.example/"));
  EXPECT_TRUE(Notice().contains("not installed"));
  EXPECT_EQ(hostLine_->text(), "http://host.example - not secure");
}

}  // namespace
}  // namespace benevix

int main(int argc, char** argv) {
  const QTemporaryDir home;  // shows what pages leave on the disk
  qputenv("HOME", home.path().toUtf8());
  for (const char* variable : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
    qunsetenv(variable);
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

#include "test_page_viewer.moc"
