// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "windows/files/Win32.h"

/// What the program's own main does for windows.
int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);
  const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  const int result = RUN_ALL_TESTS();
  if (SUCCEEDED(com)) CoUninitialize();
  return result;
}
