// SPDX-License-Identifier: MIT
#pragma once

/// The one door to the system's headers. They give their functions' names to macros, which would also rename functions
/// of the program that are called the same.
#include <windows.h>

#undef CopyFile
#undef DeleteFile
#undef PostMessage
#undef ReplaceFile
