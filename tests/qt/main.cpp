// Runs the tests of the real desktop.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // Not the user's screen, settings or speakers.
  const QTemporaryDir home;
  for (const char* place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qputenv(place, home.path().toUtf8());
  if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen:")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
