#include <QApplication>
#include <gtest/gtest.h>

#include "mirror/look/theme.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // Also where the build asks for the names of the tests.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", "2");  // so that a stroke has its full colour somewhere
  const QApplication app(argc, argv);
  benevix::ApplyTheme(*qApp, benevix::Scheme::Light);
  return RUN_ALL_TESTS();
}
