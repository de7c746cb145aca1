#include <QSslCertificate>
#include <QSslConfiguration>
#include <gtest/gtest.h>
#include <httplib.h>
#include <openssl/pem.h>
#include <thread>
#include <unistd.h>

#include "../test_certificate.h"
#include "base/runtime_error.h"
#include "platform/qt/qt_http_client.h"

namespace benevix {
namespace {

using namespace std::string_literals;

const std::string kOK = "HTTP/1.1 200 OK\r\n";

// A loopback server that records the request targets and sends the bytes that `respond` writes.
class WireServer : public httplib::Server {
 public:
  WireServer() : port_(bind_to_any_port("127.0.0.1")), thread_([this] { listen_after_bind(); }) {
    while (!is_running()) std::this_thread::yield();
  }
  ~WireServer() override {
    stop();
    thread_.join();
  }
  [[nodiscard]] std::string Host() const { return "127.0.0.1:" + std::to_string(port_); }
  void Respond(const std::string& bytes) {
    respond = [bytes](httplib::Stream& stream) { stream.write(bytes); };
  }

  std::function<void(httplib::Stream&)> respond;
  std::vector<std::string> targets;

 private:
  bool process_and_close_socket(socket_t socket) override {
    httplib::detail::process_client_socket(socket, 5, 0, 5, 0, [this](httplib::Stream& stream) {
      std::string head;
      for (char c = 0; !head.ends_with("\r\n\r\n") && stream.read(&c, 1) == 1;) head += c;
      const auto end = head.find(" HTTP/1.1\r\n");
      targets.push_back(end == std::string::npos ? head : head.substr(4, end - 4));
      respond(stream);
      return true;
    });
    httplib::detail::close_socket(socket);
    return true;
  }

  int port_;
  std::thread thread_;
};

struct CountingWaits : Waits {
  void Begin() override { ++open; }
  void End() override { --open; }
  void DoEvents() override {}
  int open = 0;
};

class HttpClientTest : public testing::Test {
 protected:
  HttpClientTest() { server_.Respond(kOK + "Content-Length: 9\r\n\r\nserver ok"); }
  ~HttpClientTest() override { EXPECT_EQ(waits_.open, 0); }
  std::string Open(const std::string& path = "") { return client_.OpenURL(base_ + path, options_); }
  std::string Error(const std::string& address) {
    try {
      return "no error: " + client_.OpenURL(address, options_).substr(0, 100);
    } catch (const RuntimeError& error) {
      return error.what();
    }
  }

  WireServer server_;
  std::string base_ = "http://" + server_.Host() + "/";
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
    EXPECT_EQ(server_.targets.back(), "/" + target);
  }
  for (const auto* bad : {"", "file:///etc/passwd", "http://", "http://a b/", "http://\xFC.de/"}) {
    EXPECT_NE(Error(bad).find("is no web address"), std::string::npos) << Error(bad);
  }
}

TEST_F(HttpClientTest, ReturnsTheResponseOfAnyStatus) {
  for (const std::string status : {"200", "302", "400", "401", "404", "407", "418", "500", "599"}) {
    server_.Respond("HTTP/1.1 " + status + " X\r\nWWW-Authenticate: Basic\r\n\r\n<b>\0\xFF"s);
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
    server_.targets.clear();
    for (const std::string& response : responses) {
      server_.Respond(response);
      EXPECT_TRUE(Error(base_).starts_with("127.0.0.1: ")) << response;
    }
    EXPECT_EQ(server_.targets.size(), std::size(responses));
  }
  EXPECT_TRUE(Error("http://127.0.0.1:1/").starts_with("127.0.0.1: "));
}

TEST_F(HttpClientTest, TimeoutRestartsWithEachByte) {
  options_.timeout = 1;
  server_.respond = [](httplib::Stream& stream) {
    stream.write(kOK + "\r\n");
    for (int i = 0; i < 6 && stream.write("x") > 0; ++i) usleep(250'000);
  };
  EXPECT_EQ(Open(), "xxxxxx");
  server_.respond = [](httplib::Stream& stream) {
    char byte = 0;
    stream.read(&byte, 1);  // until the client closes
  };
  EXPECT_EQ(Error(base_), "127.0.0.1: nothing received for 1 seconds");
}

TEST_F(HttpClientTest, LimitsRedirects) {
  const auto redirectTo = [&](const std::string& location) {
    server_.Respond("HTTP/1.1 302 Found\r\nLocation: " + location + "\r\n\r\nno");
  };
  redirectTo("file:///etc/passwd");
  EXPECT_EQ(Error(base_), "\"file:///etc/passwd\" is no web address");
  redirectTo("next?a=b%20c#d");
  EXPECT_EQ(Error(base_ + "f/x"), "127.0.0.1: too many redirects");
  EXPECT_EQ(server_.targets.size(), 12U);
  EXPECT_EQ(server_.targets.back(), "/f/next?a=b%20c");
}

TEST_F(HttpClientTest, NeverFollowsARedirectFromHttpsToHttp) {
  const TestCertificate certificate;
  BIO* const pem = BIO_new(BIO_s_mem());
  PEM_write_bio_X509(pem, certificate.certificate.get());
  char* text = nullptr;
  const auto size = static_cast<int>(BIO_get_mem_data(pem, &text));
  QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
  trusting.addCaCertificate(QSslCertificate(QByteArray(text, size)));
  QSslConfiguration::setDefaultConfiguration(trusting);
  BIO_free(pem);
  httplib::SSLServer safe(certificate.certificate.get(), certificate.key.get());
  const std::string home =
      "https://127.0.0.1:" + std::to_string(safe.bind_to_any_port("127.0.0.1")) + "/";
  const auto redirect = [&safe](const std::string& path, const std::string& to) {
    safe.Get(path, [to](const httplib::Request&, httplib::Response& response) {
      response.set_redirect(to);
    });
  };
  safe.Get("/safe", [](const httplib::Request&, httplib::Response& response) {
    response.set_content("safe", "text/plain");
  });
  redirect("/on", home + "safe");
  redirect("/down", base_);
  std::jthread thread([&safe] { safe.listen_after_bind(); });
  while (!safe.is_running()) std::this_thread::yield();
  EXPECT_EQ(client_.OpenURL(home + "on", options_), "safe");
  EXPECT_EQ(Error(home + "down"), "127.0.0.1: redirects from https to http");
  EXPECT_TRUE(server_.targets.empty());
  server_.Respond("HTTP/1.1 302 Found\r\nLocation: " + home + "safe\r\n\r\n");
  EXPECT_EQ(Open(), "safe");
  safe.stop();
}

TEST_F(HttpClientTest, AbortsAboveTheLimit) {
  const std::string body(5'000'000, 'b');
  std::size_t last = 0;
  options_.progress = [&](std::size_t received, std::size_t) { last = received; };
  server_.Respond(kOK + "\r\n" + body);
  options_.limit = body.size();
  EXPECT_EQ(Open(), body);
  EXPECT_EQ(last, body.size());
  server_.respond = [body](httplib::Stream& stream) {
    for (stream.write(kOK + "\r\n"); stream.write(body) > 0;) continue;
  };
  EXPECT_EQ(Open(), "");
  EXPECT_LE(last, options_.limit);
}

TEST_F(HttpClientTest, UsesOnlyTheGivenProxy) {
  options_.proxy = server_.Host();
  EXPECT_EQ(client_.OpenURL("http://nowhere.invalid/a#b", options_), "server ok");
  EXPECT_EQ(server_.targets.back(), "http://nowhere.invalid/a%23b");
  for (const auto* proxy : {"host", ":80", "host:0", "host:99999", "127.0.0.1:1", "a b:80"}) {
    options_.proxy = proxy;
    EXPECT_FALSE(Error(base_).starts_with("no error")) << proxy;
  }
}

}  // namespace
}  // namespace benevix
