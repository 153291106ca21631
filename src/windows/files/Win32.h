// SPDX-License-Identifier: MIT
#pragma once

/// The one door to the system's headers. They give their functions' names to macros, which would also rename functions
/// of the program that are called the same.
// The others need the first.
// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <commoncontrols.h>
#include <uxtheme.h>
#include <shellapi.h>
#include <shlobj.h>
#include <windowsx.h>
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
