#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLibrary>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <csignal>
#include <gtest/gtest.h>
#include <httplib.h>
#include <mutex>
#include <openssl/evp.h>
#include <openssl/x509.h>
#include <thread>
#include <unistd.h>

#include "window/page_viewer/page_view_host.h"

namespace benevix {
namespace {

const char* const kSandboxVariable = "QTWEBENGINE_DISABLE_SANDBOX";

// A site on the loopback that counts who asked for what.
template <class Server>
class Site : public Server {
 public:
  template <class... Arguments>
  explicit Site(Arguments... arguments)
      : Server(arguments...), port_(Server::bind_to_any_port("127.0.0.1")) {
    Server::set_keep_alive_max_count(1);  // an open connection would hold up the end
    Server::set_pre_routing_handler([this](const httplib::Request& request, httplib::Response&) {
      const std::lock_guard lock(mutex_);
      asked_.push_back(request.target + " " + request.get_header_value("Cookie"));
      return Server::HandlerResponse::Unhandled;
    });
  }
  ~Site() override {
    Server::stop();
    if (thread_.joinable()) thread_.join();
  }
  void Page(const std::string& path, const std::string& html) {
    Server::Get(path, [html](const httplib::Request&, httplib::Response& response) {
      response.set_content(html, "text/html");
    });
  }
  void Open() {
    thread_ = std::thread([this] { Server::listen_after_bind(); });
    while (!Server::is_running()) std::this_thread::yield();
  }
  [[nodiscard]] std::string Host() const { return "127.0.0.1:" + std::to_string(port_); }
  [[nodiscard]] bool WasAsked(const std::string& request) {
    const std::lock_guard lock(mutex_);
    return std::find(asked_.begin(), asked_.end(), request) != asked_.end();
  }

 private:
  int port_;
  std::thread thread_;
  std::mutex mutex_;
  std::vector<std::string> asked_;
};

// Stands in for the desktop, which opens what the program hands on.
class Browser : public QObject {
  Q_OBJECT
 public Q_SLOTS:
  void Open(const QUrl& url) { opened = url; }

 public:
  QUrl opened;
};

class PageViewerTest : public testing::Test {
 protected:
  PageViewerTest() {
    auto* column = new QVBoxLayout(&window_);
    column->addWidget(hostLine_);
    column->addWidget(container_, 1);
    window_.resize(720, 560);
    window_.show();
  }
  ~PageViewerTest() override {
    const QString folder = qEnvironmentVariable("BENEVIX_PICTURES");
    if (folder.isEmpty()) return;
    QTest::qWait(300);
    window_.grab().save(folder + "/" +
                        testing::UnitTest::GetInstance()->current_test_info()->name() + ".png");
  }

  [[nodiscard]] QObject* Engine(const char* className) const {
    for (QObject* object : container_->findChildren<QObject*>()) {
      if (object->inherits(className)) return object;
    }
    return nullptr;
  }
  void Show(const std::string& address) {
    host_.Navigate(address);
    QObject* view = Engine("QWebEngineView");
    ASSERT_NE(view, nullptr) << Notice().toStdString();
    EXPECT_TRUE(QSignalSpy(view, SIGNAL(loadFinished(bool))).wait(20000));
  }
  QString Value(const QString& expression) {
    using Probe = QString (*)(QObject*, const QString&);
    static const auto probe = reinterpret_cast<Probe>(QLibrary::resolve(PAGE_PROBE, "ValueInPage"));
    QObject* page = Engine("QWebEnginePage");
    return page == nullptr ? Notice() : probe(page, expression);
  }
  bool Becomes(const QString& expression, const QString& wanted) {
    QString value;
    if (QTest::qWaitFor([&] { return (value = Value(expression)) == wanted; }, 10000)) return true;
    ADD_FAILURE() << qPrintable(expression) << " is " << qPrintable(value);
    return false;
  }
  bool ShowsText(const QString& text) {
    return Becomes("document.body&&document.body.innerText.trim()", text);
  }
  // As the user does it.
  void ClickAt(int x, int y) {
    auto* view = qobject_cast<QWidget*>(Engine("QWebEngineView"));
    ASSERT_NE(view, nullptr);
    QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, QPoint(x, y));
  }
  [[nodiscard]] QString Notice() const {
    const auto* notice = container_->findChild<QWidget*>("pageNotice");
    return notice == nullptr ? QString() : notice->findChild<QLabel*>()->text();
  }
  std::string Put(const QString& name, const QByteArray& bytes) {
    const QString path = folder_.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path.toStdString();
  }
  // Runs the running test again, in another program file or surroundings.
  void RunAgain(const QString& program, const QProcessEnvironment& environment) {
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, {"--gtest_filter=*." + QString::fromStdString(name)});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
  }

  QTemporaryDir folder_;
  Site<httplib::Server> site_;
  QWidget window_;
  QLabel* hostLine_ = new QLabel;
  QWidget* container_ = new QWidget;
  PageViewHost host_{container_, hostLine_};
};

TEST_F(PageViewerTest, WebPageIsShownUnderItsOwnHost) {
  site_.Page("/a b/\xC3\xA9", "<h1>Payment</h1>");
  site_.Page("/other", "<p>Other host</p>");
  site_.Get("/away", [this](const httplib::Request&, httplib::Response& response) {
    response.set_redirect("http://localhost" + site_.Host().substr(9) + "/other");
  });
  site_.Open();
  Show("http://" + site_.Host() + "/a b/%C3%A9?name=Caf\xE9 1&x=#2");
  EXPECT_TRUE(ShowsText("Payment"));
  EXPECT_TRUE(site_.WasAsked("/a%20b/%C3%A9?name=Caf%E9%201&x=%232 "));
  EXPECT_EQ(hostLine_->text().toStdString(), site_.Host());

  Show("http://" + site_.Host() + "/away");
  EXPECT_TRUE(ShowsText("Other host"));
  EXPECT_EQ(hostLine_->text().toStdString(), "localhost" + site_.Host().substr(9));

  host_.Clear();
  EXPECT_EQ(Engine("QWebEngineView"), nullptr);
  EXPECT_EQ(hostLine_->text(), "");
}

TEST_F(PageViewerTest, NothingIsKept) {
  const std::string home = "http://" + site_.Host();
  site_.Page("/", "<script>document.cookie='visit=1;max-age=9999';localStorage.x=1</script>");
  site_.Page("/again", "<p>again</p>");
  site_.Open();
  Show(home + "/");
  EXPECT_TRUE(Becomes("localStorage.x", "1"));
  Value("location.href='/again'");
  EXPECT_TRUE(ShowsText("again"));
  EXPECT_TRUE(site_.WasAsked("/again visit=1"));  // a payment needs its session
  host_.Clear();
  Show(home + "/again?2");
  EXPECT_TRUE(ShowsText("again"));
  EXPECT_TRUE(site_.WasAsked("/again?2 "));
  EXPECT_EQ(Value("String(localStorage.x)"), "undefined");
}

TEST_F(PageViewerTest, LocalPageOpensAtItsAnchor) {
  const QByteArray far = "<p style='height:3000px'>far</p>";
  const std::string file =
      Put(QString::fromUtf8("C# é/my help.html"), "<A NAME=\"Top\">Top</A>" + far +
                                                      "<A NAME=\"Getting%20Started\">Start</A>" +
                                                      far + "<A NAME=\"Fees \xE9\">Fees</A>" + far);
  std::string dosPath = file;
  std::replace(dosPath.begin(), dosPath.end(), '/', '\\');
  const QString top = "Math.round(document.anchors[%1].getBoundingClientRect().top)";

  Show(dosPath + "#Getting Started");
  EXPECT_TRUE(Becomes(top.arg(1), "0"));
  EXPECT_EQ(hostLine_->text(), "my help.html");
  Show(file + "#Fees \xE9");
  EXPECT_TRUE(Becomes(top.arg(2), "0"));
  QTest::keyClick(window_.focusWidget(), Qt::Key_Home);
  EXPECT_TRUE(Becomes("window.scrollY", "0"));
  Show(file + "#Fees \xE9");  // the same deed once more
  EXPECT_TRUE(Becomes(top.arg(2), "0"));
  Show(file + "#Nowhere");
  EXPECT_TRUE(Becomes("window.scrollY", "0"));
}

TEST_F(PageViewerTest, TextFileIsShownAsItStands) {
  // Bytes that look like another encoding, like data and like a page.
  const QByteArray record =
      "<html><b>-- 1/2/2024 @ 10:00 \x80 \xD0\xD1\xD2 \x01\r\n      two  blanks";
  Show(Put("history.dat", record));
  EXPECT_TRUE(
      ShowsText(QString::fromUtf8("<html><b>-- 1/2/2024 @ 10:00 € ÐÑÒ \x01\n      two  blanks")));
  EXPECT_EQ(Value("document.contentType+document.characterSet"), "text/plainwindows-1252");
  EXPECT_EQ(hostLine_->text(), "history.dat");

  const int count = 40'000;
  Show(Put("long.dat", QByteArray("12345 organization 10.00\r\n").repeated(count)));
  EXPECT_TRUE(Becomes("document.body.textContent.length", QString::number(count * 25)));
}

TEST_F(PageViewerTest, PageOfTheWebGetsAtNoFile) {
  const std::string secret = Put("secret.html", "<p>secret</p>");
  const std::string text = Put("secret.dat", "secret");
  site_.Page("/", "<a href='file://" + secret + R"('style='display:block'>file</a>
      <iframe src='file://)" +
                      secret + R"('></iframe>
      <script>var read='';
      for (const a of ['file://)" +
                      secret + "','benevix-text://" + text + R"('])
        fetch(a).then(r=>r.text()).then(t=>read+=t,()=>read+='no ');
      </script>)");
  site_.Open();
  Show(text);
  EXPECT_TRUE(ShowsText("secret"));
  Show("http://" + site_.Host() + "/");
  EXPECT_TRUE(Becomes("read", "no no "));
  ClickAt(20, 15);
  for (const std::string& address : {"file://" + secret, "benevix-text://" + text}) {
    Value("location.href='" + QString::fromStdString(address) + "'");
    Value("frames[0].location.href='" + QString::fromStdString(address) + "'");
  }
  QTest::qWait(500);
  EXPECT_EQ(Value("location.protocol+frames.length"), "http:1");
  EXPECT_EQ(hostLine_->text().toStdString(), site_.Host());
}

TEST_F(PageViewerTest, WindowsDownloadsAndDevicesAreRefused) {
  site_.Page("/", R"(<a href='/next' target='_blank' style='display:block'>next</a>
      <script>var location_='?';
      window.open('/popup');
      navigator.geolocation.getCurrentPosition(()=>location_='found',e=>location_=e.code)
      </script>)");
  site_.Page("/next", "<p>next</p>");
  site_.Page("/popup", "<p>pop-up</p>");
  site_.Get("/file", [](const httplib::Request&, httplib::Response& response) {
    response.set_header("Content-Disposition", "attachment; filename=virus.exe");
    response.set_content("MZ", "application/octet-stream");
  });
  site_.Open();
  Show("http://" + site_.Host() + "/");
  EXPECT_TRUE(Becomes("location_", "1"));  // permission denied
  Value("location.href='/file'");
  QTest::qWait(500);
  EXPECT_TRUE(site_.WasAsked("/file "));
  EXPECT_FALSE(site_.WasAsked("/popup "));
  EXPECT_EQ(Value("document.links.length"), "1");  // the page before it stays
  EXPECT_TRUE(QDir::home().entryList({"virus*", "Downloads"}).isEmpty());

  ClickAt(20, 15);
  EXPECT_TRUE(ShowsText("next"));
  EXPECT_EQ(QApplication::topLevelWidgets().size(), 1);
}

TEST_F(PageViewerTest, SiteWithoutATrustedCertificateIsNotAsked) {
  EVP_PKEY* key = EVP_RSA_gen(2048);
  X509* certificate = X509_new();
  X509_gmtime_adj(X509_getm_notBefore(certificate), 0);
  X509_gmtime_adj(X509_getm_notAfter(certificate), 3600);
  X509_set_pubkey(certificate, key);
  X509_sign(certificate, key, EVP_sha256());
  {
    Site<httplib::SSLServer> falseSite(certificate, key);
    falseSite.Page("/", "<p>false</p>");
    falseSite.Open();
    Show("https://" + falseSite.Host() + "/");
    EXPECT_TRUE(Becomes("document.body.innerText.includes('CERT')", "true"));
    EXPECT_FALSE(falseSite.WasAsked("/ "));
  }
  X509_free(certificate);
  EVP_PKEY_free(key);
}

TEST_F(PageViewerTest, PageThatBreaksDownLeavesANotice) {
  const std::string file = Put("page.html", "<p>well</p>");
  Show(file);
  EXPECT_TRUE(ShowsText("well"));
  const auto process = Engine("QWebEnginePage")->property("renderProcessPid").toInt();
  ASSERT_GT(process, 1);
  kill(process, SIGKILL);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Notice().contains("stopped working"); }));
  Show(file);
  EXPECT_EQ(Notice(), "");
  EXPECT_TRUE(ShowsText("well"));
}

TEST_F(PageViewerTest, MailLinkGoesToTheMailProgram) {
  Show(Put("page.html", "<a href='mailto:a@host.example' style='display:block'>mail</a>"));
  Browser mail;
  QDesktopServices::setUrlHandler("mailto", &mail, "Open");
  ClickAt(20, 15);
  EXPECT_TRUE(QTest::qWaitFor([&] { return mail.opened.path() == "a@host.example"; }));
  EXPECT_TRUE(ShowsText("mail"));
  QDesktopServices::unsetUrlHandler("mailto");
}

TEST_F(PageViewerTest, PagesMayEndAtAnyTime) {
  const std::string file = Put("page.html", "<p>last</p>");
  for (int i = 0; i < 10; ++i) {
    host_.Navigate(file);
    QTest::qWait(20 * i);
  }
  EXPECT_TRUE(ShowsText("last"));
  host_.Navigate(file);
  delete container_;
  delete hostLine_;
  QTest::qWait(300);
}

TEST_F(PageViewerTest, WhatIsNoPageIsNamed) {
  for (const std::string address : {"page.html", "ftp://x/y", "http:///x", "/no/such.html"}) {
    host_.Navigate(address);
    EXPECT_TRUE(Notice().contains(QString::fromStdString(address))) << address;
    EXPECT_EQ(hostLine_->text(), "");
  }
  host_.Navigate("");
  EXPECT_EQ(Notice(), "");
}

TEST_F(PageViewerTest, NoEngineForTheAdministrator) {
  if (geteuid() != 0) GTEST_SKIP();
  if (qEnvironmentVariableIsSet(kSandboxVariable)) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(kSandboxVariable);
    RunAgain(QCoreApplication::applicationFilePath(), environment);
    return;
  }
  host_.Navigate("https://host.example/pay?a=b c");
  EXPECT_TRUE(Notice().contains("administrator"));
  EXPECT_EQ(hostLine_->text(), "host.example");
  QFile maps("/proc/self/maps");
  ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
  EXPECT_FALSE(maps.readAll().contains("WebEngine"));

  Browser browser;
  QDesktopServices::setUrlHandler("https", &browser, "Open");
  container_->findChild<QPushButton*>()->click();
  EXPECT_EQ(browser.opened.toEncoded(), "https://host.example/pay?a=b%20c");
  QDesktopServices::unsetUrlHandler("https");
}

TEST_F(PageViewerTest, NoEngineWithoutThePlugIn) {
  const QString program = QCoreApplication::applicationFilePath();
  if (QFile::exists(QCoreApplication::applicationDirPath() + "/plugins")) {
    const QString lonely = folder_.filePath("lonely");
    ASSERT_TRUE(QFile::copy(program, lonely));
    RunAgain(lonely, QProcessEnvironment::systemEnvironment());
    return;
  }
  host_.Navigate("http://host.example/");
  EXPECT_TRUE(Notice().contains("not installed"));
}

}  // namespace
}  // namespace benevix

int main(int argc, char** argv) {
  const QTemporaryDir home;  // shows what reaches the disk
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
