#include <QApplication>
#include <QByteArray>

#include <gtest/gtest.h>
#include <tests/support/StrictWatch.h>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setCursorFlashTime(0);
  // The cases play the application themselves, and leave its callbacks to the suite.
  test_support::StrictWatch::AllowAlways("left: callback ");
  return RUN_ALL_TESTS();
}
