#pragma once

#include <QWidget>

namespace benevix {

// A panel at the side of a wide window: a quarter of what is around it, and folded away while that
// has no room for it.
class FoldingPane : public QWidget {
 public:
  explicit FoldingPane(QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  // The window can be made as small as without it.
  [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Fit(int room);

  int width_ = 0;
};

}  // namespace benevix
