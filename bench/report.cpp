#include "report.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>
#include <stdexcept>

namespace benevix {

void Report::Title(const std::string& text) {
  title_ = text;
  std::printf("\n%s\n", text.c_str());
}

void Report::Line(const std::string& what, double value, const std::string& unit) {
  std::printf("  %-46s %10.3f %s\n", what.c_str(), value, unit.c_str());
  results_.append(QJsonObject{{"title", QString::fromStdString(title_)},
                              {"what", QString::fromStdString(what)},
                              {"value", value},
                              {"unit", QString::fromStdString(unit)}});
}

void Report::Ratio(const std::string& what, double ratio, double aim) {
  const bool met = ratio <= aim;
  std::printf("  %-46s %10.2f x   (aim: at most %.1f, %s)\n", what.c_str(), ratio, aim,
              met ? "met" : "missed");
  results_.append(QJsonObject{{"title", QString::fromStdString(title_)},
                              {"what", QString::fromStdString(what)},
                              {"value", ratio},
                              {"aim", aim},
                              {"met", met}});
}

void Report::WriteJson(const std::string& file) const {
  QFile out(QString::fromStdString(file));
  const QByteArray text = QJsonDocument(results_).toJson();
  if (!out.open(QIODevice::WriteOnly) || out.write(text) != text.size() || !out.flush()) {
    throw std::runtime_error(file + ": cannot be written");
  }
}

}  // namespace benevix
