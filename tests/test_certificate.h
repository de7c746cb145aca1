#pragma once

#include <QByteArray>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>
#include <map>
#include <memory>
#include <openssl/evp.h>
#include <openssl/x509v3.h>
#include <string>

namespace benevix {

// What `encode`, one of the library's i2d functions, makes of a key or certificate.
template <class Encode, class Thing>
QByteArray Bytes(Encode encode, Thing* thing) {
  unsigned char* bytes = nullptr;
  const int size = encode(thing, &bytes);
  const QByteArray copy(reinterpret_cast<const char*>(bytes), size);
  OPENSSL_free(bytes);
  return copy;
}

// A certificate of 127.0.0.1, valid for an hour, that nobody trusts unless told to.
struct TestCertificate {
  TestCertificate() {
    X509_set_version(certificate.get(), X509_VERSION_3);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), 0);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
    X509_NAME* const name = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>("127.0.0.1"), -1, -1, 0);
    X509_set_issuer_name(certificate.get(), name);
    X509_EXTENSION* const host =
        X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, "IP:127.0.0.1");
    X509_add_ext(certificate.get(), host, -1);
    X509_EXTENSION_free(host);
    X509_set_pubkey(certificate.get(), key.get());
    X509_sign(certificate.get(), key.get(), EVP_sha256());
  }

  // Of a server that shows it.
  [[nodiscard]] QSslConfiguration Configuration() const {
    QSslConfiguration configuration;
    configuration.setPrivateKey(QSslKey(Bytes(i2d_PrivateKey, key.get()), QSsl::Rsa, QSsl::Der));
    configuration.setLocalCertificate(Shown());
    return configuration;
  }
  [[nodiscard]] QSslCertificate Shown() const {
    return QSslCertificate(Bytes(i2d_X509, certificate.get()), QSsl::Der);
  }

  std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key{EVP_RSA_gen(2048), EVP_PKEY_free};
  std::unique_ptr<X509, decltype(&X509_free)> certificate{X509_new(), X509_free};
};

// A site on https with that certificate, in the thread of its client.
class SecureSite {
 public:
  SecureSite() {
    server_.setSslConfiguration(certificate.Configuration());
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QSslServer::pendingConnectionAvailable, [this] {
      QTcpSocket* const socket = server_.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, [this, socket] {
        socket->write(responses[socket->readAll().split(' ').value(1).toStdString()]);
        socket->disconnectFromHost();
      });
    });
  }
  [[nodiscard]] std::string Host() const {
    return "127.0.0.1:" + std::to_string(server_.serverPort());
  }
  void Redirect(const std::string& path, const std::string& to) {
    responses[path] = QByteArray::fromStdString("HTTP/1.1 302 Found\r\nLocation: " + to +
                                                "\r\nContent-Length: 0\r\n\r\n");
  }
  void Page(const std::string& path, const std::string& html) {
    responses[path] =
        QByteArray::fromStdString("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: " +
                                  std::to_string(html.size()) + "\r\n\r\n" + html);
  }

  TestCertificate certificate;
  std::map<std::string, QByteArray> responses;  // by path

 private:
  QSslServer server_;
};

}  // namespace benevix
