#include <QTest>
#include <QWebEnginePage>
#include <memory>
#include <optional>

// The value of a script's expression in a page. A library of its own, so that the test that loads
// it does not link the engine.
extern "C" void ValueInPage(QObject* page, const QString& expression, QString& value) {
  const auto answer = std::make_shared<std::optional<QVariant>>();
  qobject_cast<QWebEnginePage*>(page)->runJavaScript(
      expression, [answer](const QVariant& result) { *answer = result; });
  if (QTest::qWaitFor([&] { return answer->has_value(); }, 1000)) value = (*answer)->toString();
}
