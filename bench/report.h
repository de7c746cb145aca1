#pragma once

#include <QJsonArray>
#include <string>

namespace benevix {

// Prints the results, and keeps them for a machine.
class Report {
 public:
  void Title(const std::string& text);
  void Line(const std::string& what, double value, const std::string& unit);
  // Says whether the aim, an upper limit, is met.
  void Ratio(const std::string& what, double ratio, double aim);

  // Writes an array of objects: "title", "what" and "value" with its "unit", or with "aim" and
  // "met" for a ratio. Raises std::runtime_error when the file cannot be written.
  void WriteJson(const std::string& file) const;

 private:
  QJsonArray results_;
  std::string title_;
};

}  // namespace benevix
