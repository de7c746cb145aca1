#pragma once

#include <QColor>
#include <QWidget>

namespace benevix {

// A rounded rectangle, which is a disc where it is small and square.
class ShapeWidget : public QWidget {
 public:
  explicit ShapeWidget(QWidget* parent = nullptr);

  // An invalid fill colour leaves the inside transparent.
  void SetFill(const QColor& color);
  void SetBorder(const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor fill_;
  QColor border_;
};

}  // namespace benevix
