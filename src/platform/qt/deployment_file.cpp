#include "platform/qt/deployment_file.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/qt/wire_url.h"

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

  [[nodiscard]] std::string BaseAddress(const char* key) const {
    std::string text = Text(key);
    try {
      WireUrl(text);
      if (text.ends_with('/')) return text;
    } catch (const RuntimeError&) {
    }
    Fail(name_, std::string(key) + " must be an http or https address that ends in \"/\"");
  }

 private:
  std::string name_;
  QHash<QByteArray, QByteArray> values_;
};

}  // namespace

Deployment ReadDeployment(const std::string& file) {
  const Values values(file);
  Deployment deployment;
  deployment.serverBase = values.BaseAddress("ServerBase");
  deployment.paymentBase = values.Text("PaymentBase");
  deployment.mail = values.Text("Mail");
  deployment.translationName = values.Text("TranslationName");
  deployment.translationBase = values.Text("TranslationBase");
  deployment.copyright = values.Text("Copyright");
  deployment.product = values.Text("Product");
  return deployment;
}

}  // namespace benevix
