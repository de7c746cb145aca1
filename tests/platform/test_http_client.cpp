#include <gtest/gtest.h>

#include "../test_certificate.h"
#include "base/runtime_error.h"
#include "loopback/loopback_server.h"
#include "platform/qt/qt_http_client.h"

namespace benevix {
namespace {

using namespace std::string_literals;

const std::string kOK = "HTTP/1.1 200 OK\r\n";

using Answer = LoopbackServer::Answer;
using Reply = LoopbackServer::Reply;

struct CountingWaits : Waits {
  void Begin() override { ++open; }
  void End() override { --open; }
  void DoEvents() override {}
  int open = 0;
};

class HttpClientTest : public testing::Test {
 protected:
  HttpClientTest() {
    server_.Bind(0);
    server_.Start([this](const LoopbackServer::Request& request) {
      targets_.push_back(request.target);
      return answer_;
    });
  }
  ~HttpClientTest() override { EXPECT_EQ(waits_.open, 0); }
  std::string Open(const std::string& path = "") { return client_.OpenURL(base_ + path, options_); }
  std::string Error(const std::string& address) {
    try {
      return "no error: " + client_.OpenURL(address, options_).substr(0, 100);
    } catch (const RuntimeError& error) {
      return error.what();
    }
  }

  // The bytes that the server sends, whatever it is asked.
  void Respond(const std::string& bytes) { answer_ = {.reply = Reply::Bytes, .body = bytes}; }

  Answer answer_{.body = "server ok"};
  std::vector<std::string> targets_;
  LoopbackServer server_;
  const std::string& base_ = server_.Address();
  CountingWaits waits_;
  QtHttpClient client_{waits_};
  HttpOptions options_;
};

TEST_F(HttpClientTest, EncodesAddresses) {
  const std::string addresses[][2] = {
      {"a?email=a b@c,d&=1;2+3/4:5?6", "a?email=a%20b@c,d&=1;2+3/4:5?6"},
      {"m?&=x\r\nA: b\r\n\r\nGET /x", "m?&=x%0D%0AA:%20b%0D%0A%0D%0AGET%20/x"},
      {"m?&=\0\t\x7F\x80\xFC\xFF#b#c"s, "m?&=%00%09%7F%80%FC%FF%23b%23c"},
      {"m?100% %zz %2 %2C%20%25%FC%2541%", "m?100%25%20%25zz%20%252%20%2C%20%25%FC%2541%25"},
      {"\"<>\\^`{|}'!*()~[]$-_.", "%22%3C%3E%5C%5E%60%7B%7C%7D'!*()~[]$-_."},
      {std::string(500'000, 'p'), std::string(500'000, 'p')},
  };
  for (const auto& [path, target] : addresses) {
    EXPECT_EQ(Open(path), "server ok");
    EXPECT_EQ(targets_.back(), "/" + target);
  }
  for (const auto* bad : {"", "file:///etc/passwd", "http://", "http://a b/", "http://\xFC.de/"}) {
    EXPECT_NE(Error(bad).find("is no web address"), std::string::npos) << Error(bad);
  }
}

TEST_F(HttpClientTest, ReturnsTheResponseOfAnyStatus) {
  for (const std::string status : {"200", "302", "400", "401", "404", "407", "418", "500", "599"}) {
    Respond("HTTP/1.1 " + status + " X\r\nWWW-Authenticate: Basic\r\n\r\n<b>\0\xFF"s);
    EXPECT_EQ(Open(), "<b>\0\xFF"s) << status;
    options_.needsOk = true;
    EXPECT_EQ(Open().empty(), status != "200") << status;
    options_.needsOk = false;
  }
}

TEST_F(HttpClientTest, FailsWithoutACompleteResponseAndNeverRetries) {
  const std::string responses[] = {"", "server ok\r\n\r\nserver ok", kOK + "Conte",
                                   kOK + "Content-Length: 100\r\n\r\nserver ok",
                                   kOK + "Transfer-Encoding: chunked\r\n\r\n9\r\nserver ok\r\n"};
  for (int i = 0; i < 20; ++i) {  // closing shows as different errors, depending on timing
    targets_.clear();
    for (const std::string& response : responses) {
      Respond(response);
      EXPECT_TRUE(Error(base_).starts_with("127.0.0.1: ")) << response;
    }
    EXPECT_EQ(targets_.size(), std::size(responses));
  }
  EXPECT_TRUE(Error("http://127.0.0.1:1/").starts_with("127.0.0.1: "));
}

TEST_F(HttpClientTest, TimeoutRestartsWithEachByte) {
  options_.timeout = 1;
  answer_ = {.body = "xxxxxx", .pause = 0.25};
  EXPECT_EQ(Open(), "xxxxxx");
  answer_ = {.reply = Reply::Silence};
  EXPECT_EQ(Error(base_), "127.0.0.1: nothing received for 1 seconds");
}

TEST_F(HttpClientTest, LimitsRedirects) {
  const auto redirectTo = [&](const std::string& location) {
    Respond("HTTP/1.1 302 Found\r\nLocation: " + location + "\r\n\r\nno");
  };
  redirectTo("file:///etc/passwd");
  EXPECT_EQ(Error(base_), "\"file:///etc/passwd\" is no web address");
  redirectTo("next?a=b%20c#d");
  EXPECT_EQ(Error(base_ + "f/x"), "127.0.0.1: too many redirects");
  EXPECT_EQ(targets_.size(), 12U);
  EXPECT_EQ(targets_.back(), "/f/next?a=b%20c");
}

TEST_F(HttpClientTest, NeverFollowsARedirectFromHttpsToHttp) {
  SecureSite safe;
  QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
  trusting.addCaCertificate(safe.certificate.Shown());
  QSslConfiguration::setDefaultConfiguration(trusting);
  const std::string home = "https://" + safe.Host() + "/";
  safe.Page("/safe", "safe");
  safe.Redirect("/on", home + "safe");
  safe.Redirect("/down", base_);
  EXPECT_EQ(client_.OpenURL(home + "on", options_), "safe");
  EXPECT_EQ(Error(home + "down"), "127.0.0.1: redirects from https to http");
  EXPECT_TRUE(targets_.empty());
}

TEST_F(HttpClientTest, AbortsAboveTheLimit) {
  const std::string body(5'000'000, 'b');
  std::size_t last = 0;
  options_.progress = [&](std::size_t received, std::size_t) { last = received; };
  Respond(kOK + "\r\n" + body);
  options_.limit = body.size();
  EXPECT_EQ(Open(), body);
  EXPECT_EQ(last, body.size());
  Respond(kOK + "\r\n" + body + body);
  EXPECT_EQ(Open(), "");
  EXPECT_LE(last, options_.limit);
}

TEST_F(HttpClientTest, UsesTheGivenProxyElseTheDesktops) {
  setenv("http_proxy", base_.c_str(), 1);
  EXPECT_EQ(client_.OpenURL("http://nowhere.invalid/", options_), "server ok");
  EXPECT_EQ(targets_.back(), "http://nowhere.invalid/");
  EXPECT_EQ(Open("a"), "server ok");
  EXPECT_EQ(targets_.back(), "/a");
  setenv("http_proxy", "http://127.0.0.1:1/", 1);
  options_.proxy = base_.substr(7, base_.size() - 8);
  EXPECT_EQ(client_.OpenURL("http://nowhere.invalid/a#b", options_), "server ok");
  EXPECT_EQ(targets_.back(), "http://nowhere.invalid/a%23b");
  for (const auto* proxy : {"host", ":80", "host:0", "host:99999", "127.0.0.1:1", "a b:80"}) {
    options_.proxy = proxy;
    EXPECT_FALSE(Error(base_).starts_with("no error")) << proxy;
  }
}

}  // namespace
}  // namespace benevix
