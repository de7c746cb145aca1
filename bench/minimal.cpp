// A minimal Qt program: a window with a menu bar and a tree of 200 rows.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTreeWidget>

#include "shown.h"

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  QMainWindow window;
  QMenu* const menu = window.menuBar()->addMenu(QStringLiteral("&File"));
  menu->addAction(QStringLiteral("E&xit"), &window, &QWidget::close);
  auto* const tree = new QTreeWidget;
  tree->setColumnCount(3);
  for (int row = 0; row < 200; ++row) {
    const QString text = QStringLiteral("Row %1").arg(row);
    tree->addTopLevelItem(new QTreeWidgetItem({text, text, text}));
  }
  window.setCentralWidget(tree);
  window.resize(1024, 720);
  benevix::ReportWhenShown();
  window.show();
  return QApplication::exec();
}
