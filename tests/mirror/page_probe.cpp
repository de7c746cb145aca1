#include <QTest>
#include <QWebEnginePage>
#include <memory>
#include <optional>

// The value of a script's expression in a page. A library of its own, so that the test that loads
// it does not link the engine.
extern "C" QString ValueInPage(QWebEnginePage* page, const QString& expression) {
  const auto value = std::make_shared<std::optional<QVariant>>();
  page->runJavaScript(expression, [value](const QVariant& result) { *value = result; });
  if (!QTest::qWaitFor([&] { return value->has_value(); }, 1000)) return {};
  return (*value)->toString();
}
