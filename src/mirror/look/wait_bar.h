#pragma once

#include <QBasicTimer>
#include <QProgressBar>

namespace benevix {

// How far a request is, or, while that is not known, a piece that wanders along the bar.
class WaitBar : public QProgressBar {
 public:
  explicit WaitBar(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  // The part that is filled, as begin and length.
  [[nodiscard]] std::pair<int, int> Filled() const;
  [[nodiscard]] bool IsKnown() const { return maximum() > minimum(); }

  QBasicTimer timer_;
  int step_ = 0;
};

}  // namespace benevix
