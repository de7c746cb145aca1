#pragma once

#include <QWidget>

namespace benevix {

// A panel at the side of a wide window: a quarter of what is around it, and folded away while that
// has no room for it.
class FoldingPane : public QWidget {
 public:
  explicit FoldingPane(QWidget* parent);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Fit(int room);
};

}  // namespace benevix
