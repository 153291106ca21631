// SPDX-License-Identifier: MIT

// Puts a document into the Recent folder as the shell does when the user opens it:
// open_recent.exe DOCUMENT SECONDS, the moment in seconds since 1970.

#include <cwchar>

#include "tests/windows/RecentDocuments.h"
#include "windows/files/WideText.h"
#include "windows/launch/ComApartment.h"

int wmain(int argc, wchar_t** argv) {
  const auto document = argc == 3 ? dayvane::files::FromWide(argv[1]) : std::nullopt;
  if (!document) return 2;
  const dayvane::launch::ComApartment apartment;
  dayvane::testing::AddRecentDocument(*document, std::wcstoll(argv[2], nullptr, 10));
  return 0;
}
