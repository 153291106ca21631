// SPDX-License-Identifier: MIT

// Measures what the program costs on Windows and prints a line for each figure. Ends with 1 when one is over its limit
// or could not be measured. The start is measured with the user's own settings and Recent folder: run it in an
// environment that was made for it, as scripts/run_windows_tests.sh does.

#include <cstdio>
#include <cstring>
#include <exception>

#include "bench/windows/Figures.h"
#include "windows/files/Win32.h"
#include "windows/launch/ComApartment.h"

namespace {

bool IsNamed(int count, char** arguments, const char* name) {
  for (int i = 1; i < count; ++i)
    if (std::strcmp(arguments[i], name) == 0) return true;
  return false;
}

/// What is measured when nothing is named, too.
bool IsWanted(int count, char** arguments, const char* name) {
  return count == 1 || IsNamed(count, arguments, name);
}

}  // namespace

int main(int count, char** arguments) {
  using namespace dayvane::bench;
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);
  const dayvane::launch::ComApartment apartment;
  try {
    Figures figures;
    if (IsWanted(count, arguments, "capture")) MeasureCapture(figures);
    if (IsNamed(count, arguments, "many")) MeasureManyShortcuts(figures);
    if (IsWanted(count, arguments, "list")) MeasureLists(figures);
    if (IsWanted(count, arguments, "start")) MeasureStart(figures);
    return figures.AllWithin() ? 0 : 1;
  } catch (const std::exception& error) {
    std::printf("could not be measured: %s\n", error.what());
    return 1;
  }
}
