#include <QApplication>
#include <QByteArray>

#include <gtest/gtest.h>
#include <tests/support/StrictWatch.h>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);
  // The window's devices are shown for as long as the program runs.
  test_support::StrictWatch::AllowAlways("left: device oxviewer.");
  return RUN_ALL_TESTS();
}
