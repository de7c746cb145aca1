#include "platform/qt/deployment_file.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/qt/wire_url.h"
#include "platform/signature.h"

namespace benevix {
namespace {

[[noreturn]] void Fail(const std::string& file, const std::string& reason) {
  throw RuntimeError(FromUtf8(file + ": " + reason));
}

class Values {
 public:
  explicit Values(const std::string& name) : name_(name) {
    QFile file(QString::fromStdString(name));
    const QFileInfo info(file);
    if (info.exists() && !info.isFile()) Fail(name, "not a regular file");  // a pipe may never end
    if (!file.open(QIODevice::ReadOnly)) Fail(name, file.errorString().toStdString());
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) Fail(name, file.errorString().toStdString());
    if (bytes.startsWith("\xEF\xBB\xBF")) bytes.remove(0, 3);  // byte order mark
    for (const QByteArray& line : bytes.split('\n')) {
      const QByteArray text = line.trimmed();
      const qsizetype equals = text.indexOf('=');
      if (equals < 0 || text.startsWith('#') || text.startsWith(';')) continue;
      values_[text.left(equals).trimmed()] = text.mid(equals + 1).trimmed();
    }
  }

  [[nodiscard]] std::string Text(const char* key) const {
    const QByteArray value = values_.value(key);
    if (value.isEmpty()) Fail(name_, std::string(key) + " is missing");
    bool lost = false;
    std::string text = FromUtf8(value.toStdString(), &lost);
    if (lost) Fail(name_, std::string(key) + " has a character that cannot be shown");
    return text;
  }

  // Empty when the key is missing, too.
  [[nodiscard]] std::string OptionalText(const char* key) const {
    return values_.value(key).isEmpty() ? std::string() : Text(key);
  }

  // `end` is what it must end in.
  [[nodiscard]] std::string Address(const char* key, const std::string& end = {}) const {
    std::string text = Text(key);
    try {
      WireUrl(text);
      if (text.ends_with(end)) return text;
    } catch (const RuntimeError&) {
      // Told below.
    }
    Refuse(key, "an http or https address" + (end.empty() ? "" : " that ends in \"" + end + "\""));
  }

  [[noreturn]] void Refuse(const char* key, const std::string& wanted) const {
    Fail(name_, std::string(key) + " must be " + wanted);
  }

 private:
  std::string name_;
  QHash<QByteArray, QByteArray> values_;
};

}  // namespace

Deployment ReadDeployment(const std::string& file) {
  const Values values(file);
  Deployment deployment;
  deployment.serverBase = values.Address("ServerBase", "/");
  deployment.paymentBase = values.Address("PaymentBase");
  deployment.mail = values.Text("Mail");
  deployment.translationName = values.Text("TranslationName");
  deployment.translationBase = values.Text("TranslationBase");
  deployment.copyright = values.Text("Copyright");
  deployment.product = values.Text("Product");
  const std::string paymentIn = values.OptionalText("PaymentIn");
  deployment.paymentInBrowser = paymentIn == "browser";
  if (!paymentIn.empty() && paymentIn != "viewer" && !deployment.paymentInBrowser) {
    values.Refuse("PaymentIn", "viewer or browser");
  }
  deployment.updateKey = values.OptionalText("UpdateKey");
  if (!deployment.updateKey.empty() && !IsPublicKey(deployment.updateKey)) {
    values.Refuse("UpdateKey", "the base64 text of an Ed25519 public key");
  }
  return deployment;
}

}  // namespace benevix
