// SPDX-License-Identifier: MIT
#pragma once

namespace dayvane {

/// Counts what a folder holds, for the sweep of empty folders.
class CFolderFiles {
 public:
  static constexpr const char* ClassName = "CFolderFiles";

  int FileCount = 0;
};

}  // namespace dayvane
