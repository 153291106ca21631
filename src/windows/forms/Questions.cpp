// SPDX-License-Identifier: MIT
#include "windows/forms/Questions.h"

#include <string_view>
#include <vector>

namespace dayvane::widgets {

namespace {

std::vector<HWND>& OpenDialogs() {
  static std::vector<HWND> dialogs;
  return dialogs;
}

constexpr std::wstring_view kBoxClass = L"#32770";  // the system's, of all its message boxes

/// Ends the enumeration at the first box that is open, which lies on top of the others.
BOOL CALLBACK FindBox(HWND window, LPARAM found) {
  wchar_t name[16]{};
  const int length = GetClassNameW(window, name, 16);
  const bool isBox = std::wstring_view(name, static_cast<std::size_t>(length)) == kBoxClass;
  if (!isBox || IsWindowVisible(window) == 0 || IsWindowEnabled(window) == 0) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

HWND OpenBox() {
  HWND box = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), &FindBox, reinterpret_cast<LPARAM>(&box));
  return box;
}

}  // namespace

OpenDialog::OpenDialog(HWND dialog) {
  OpenDialogs().push_back(dialog);
}

OpenDialog::~OpenDialog() {
  OpenDialogs().pop_back();
}

HWND OpenQuestion() {
  if (const HWND box = OpenBox()) return box;
  return OpenDialogs().empty() ? nullptr : OpenDialogs().back();
}

void CloseOpenQuestion() {
  const HWND box = OpenBox();
  const HWND question = OpenQuestion();
  if (question == nullptr) return;
  // A box that asks Yes or No knows no closing.
  if (question == box && GetDlgItem(box, IDNO) != nullptr)
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDNO, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(box, IDNO)));
  else
    PostMessageW(question, question == box ? WM_CLOSE : WM_SYSCOMMAND, question == box ? 0 : SC_CLOSE, 0);
}

}  // namespace dayvane::widgets
