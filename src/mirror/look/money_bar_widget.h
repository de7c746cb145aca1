#pragma once

#include <QColor>
#include <QWidget>
#include <vector>

namespace benevix {

// A bar of parts side by side, each as wide as its share, over a line that names them.
class MoneyBarWidget : public QWidget {
 public:
  struct Part {
    QColor color;
    QString text;
    double share = 0;  // of any unit; below zero counts as nothing

    bool operator==(const Part&) const = default;
  };

  explicit MoneyBarWidget(QWidget* parent = nullptr);

  // Without parts it is an empty track. The remark stands behind the names.
  void SetParts(std::vector<Part> parts, const QString& remark);

  // With room for all names.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintBar(QPainter& painter) const;
  void PaintNames(QPainter& painter) const;

  std::vector<Part> parts_;
  QString remark_;
};

}  // namespace benevix
