// SPDX-License-Identifier: MIT
#pragma once

/// The one door to the system's headers. They give their functions' names to macros, which would also rename functions
/// of the program that are called the same.
// clang-format off: the others need the first
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>
#include <shlobj.h>
// clang-format on

#undef CopyFile
#undef CreateWindow
#undef DeleteFile
#undef GetMessage
#undef MessageBox
#undef PostMessage
#undef ReplaceFile
#undef ReportEvent
#undef ShellExecute
