// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "windows/files/Win32.h"
#include "windows/launch/ComApartment.h"

/// What the program's own main does for windows.
int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);
  const dayvane::launch::ComApartment apartment;
  return RUN_ALL_TESTS();
}
