#include <QApplication>
#include <gtest/gtest.h>

#include "mirror/look/theme.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // The build asks the program for the names of its tests, without this variable.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Unless another one is tested, so that every stroke has pixels of its full colour.
  if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) qputenv("QT_SCALE_FACTOR", "2");
  const QApplication app(argc, argv);
  benevix::ApplyTheme(*qApp, benevix::Scheme::Light);
  return RUN_ALL_TESTS();
}
