// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "linux/glib/ErrorNet.h"

/// Widgets need an application, and a test no screen.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Nor a display to be looked at behind it, which some have and others do not.
  if (qgetenv("QT_QPA_PLATFORM") == "offscreen") qunsetenv("DISPLAY");
  const dayvane::NetApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ::testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
