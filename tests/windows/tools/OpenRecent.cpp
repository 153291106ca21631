// SPDX-License-Identifier: MIT

// Puts a document into the Recent folder as the shell does when the user opens it:
// open_recent.exe DOCUMENT SECONDS, the moment in seconds since 1970.

#include <cwchar>

#include "tests/windows/RecentDocuments.h"
#include "windows/launch/ComApartment.h"

namespace {

FILETIME MomentOfSeconds(unsigned long long seconds) {
  constexpr unsigned long long kTicks = 10'000'000;
  constexpr unsigned long long kFrom1601To1970 = 11'644'473'600;
  const unsigned long long ticks = (seconds + kFrom1601To1970) * kTicks;
  return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 3) return 2;
  const dayvane::launch::ComApartment apartment;
  dayvane::testing::OpenRecentDocument(argv[1], MomentOfSeconds(std::wcstoull(argv[2], nullptr, 10)));
  return 0;
}
