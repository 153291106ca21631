// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "windows/files/Win32.h"

namespace dayvane {

/// The folder that the program was started from, where it keeps everything, so that it can be carried about with its
/// data: a path of the program, without a trailing "\". Of another module, such as a library, where one is given.
std::string ProgramFolder(HMODULE module = nullptr);

/// Whether this user can make files in a folder. It is tried, because many things may forbid it.
bool CanBeWritten(const std::string& folder);

}  // namespace dayvane
