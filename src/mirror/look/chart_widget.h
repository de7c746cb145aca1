#pragma once

#include <QWidget>
#include <vector>

namespace benevix {

// Columns over a line of names, or shares as bars one below the other.
class ChartWidget : public QWidget {
 public:
  struct Mark {
    QString name, amount;
    double value = 0;  // of any unit, not below zero
    QString text;
    bool operator==(const Mark&) const = default;
  };

  explicit ChartWidget(QWidget* parent = nullptr);

  void SetMarks(bool areShares, std::vector<Mark> marks);

  [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void PaintColumns(QPainter& painter) const;
  void PaintShares(QPainter& painter) const;
  // Where the mark is drawn, with all that belongs to it.
  [[nodiscard]] QRectF PlaceOf(std::size_t mark) const;
  [[nodiscard]] double Largest() const;

  bool areShares_ = false;
  std::vector<Mark> marks_;
};

}  // namespace benevix
