#pragma once

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLibrary>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <mutex>

#include "loopback/loopback_server.h"
#include "mirror/page_viewer/page_view_host.h"

namespace benevix {

// A site on the loopback that records the requests.
class Site {
 public:
  Site() : port_(server_.Bind(0)) {}
  // Before the site opens. A path as it is asked for, without what is behind "?".
  void Put(const std::string& path, LoopbackServer::Answer answer) {
    answers_[path] = std::move(answer);
  }
  void Page(const std::string& path, const std::string& html) {
    Put(path, {.contentType = "text/html", .body = html});
  }
  void Open() {
    server_.Start([this](const LoopbackServer::Request& request) {
      const std::lock_guard lock(mutex_);
      asked_.push_back(request.target + " " + request.Header("Cookie"));
      const auto answer = answers_.find(request.target.substr(0, request.target.find('?')));
      return answer == answers_.end() ? LoopbackServer::Answer{.status = 404} : answer->second;
    });
  }
  [[nodiscard]] std::string Port() const { return std::to_string(port_); }
  [[nodiscard]] std::string Host() const { return "127.0.0.1:" + Port(); }
  [[nodiscard]] const std::string& Home() const { return server_.Address(); }
  [[nodiscard]] bool WasAsked(const std::string& request) {
    const std::lock_guard lock(mutex_);
    return std::find(asked_.begin(), asked_.end(), request) != asked_.end();
  }

 private:
  std::map<std::string, LoopbackServer::Answer> answers_;
  std::mutex mutex_;
  std::vector<std::string> asked_;
  LoopbackServer server_;  // last, so that it stops first
  int port_;
};

// The page viewer in a window, whose pages can be asked for values.
class PageViewerTest : public testing::Test {
 protected:
  PageViewerTest() {
    auto* column = new QVBoxLayout(&window_);
    column->addWidget(hostLine_);
    column->addWidget(container_, 1);
    window_.resize(720, 560);
    window_.show();
  }
  [[nodiscard]] QObject* Engine(const char* className) const {
    for (QObject* object : container_->findChildren<QObject*>()) {
      if (object->inherits(className)) return object;
    }
    return nullptr;
  }
  static Page PageAt(const std::string& address, const std::string& anchor = {}) {
    if (address.starts_with("http")) return Page::Web(address);
    return Page::File(FilePath(address), anchor);
  }
  void Show(const std::string& address, const std::string& anchor = {}) {
    host_.Navigate(PageAt(address, anchor));
    QObject* view = Engine("QWebEngineView");
    ASSERT_NE(view, nullptr) << Notice().toStdString();
    EXPECT_TRUE(QSignalSpy(view, SIGNAL(loadFinished(bool))).wait(20000));
  }
  QString Value(const QString& expression) {
    using Probe = void (*)(QObject*, const QString&, QString&);
    static const auto probe = reinterpret_cast<Probe>(QLibrary::resolve(PAGE_PROBE, "ValueInPage"));
    QObject* page = Engine("QWebEnginePage");
    if (page == nullptr) return Notice();
    QString value;
    probe(page, expression, value);
    return value;
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
  // With the mouse.
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
  // Runs the current test again, as another program file or in another environment.
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
  Site site_;
  QWidget window_;
  QLabel* hostLine_ = new QLabel;
  QWidget* container_ = new QWidget;
  PageViewHost host_{container_, hostLine_};
};

}  // namespace benevix
