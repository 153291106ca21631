// SPDX-License-Identifier: MIT
#include "tests/windows/help/HelpSupport.h"

// clang-format off: it needs the system's header
#include <richedit.h>
// clang-format on

#include <vector>

namespace dayvane::help::testing {

namespace {

constexpr WPARAM kDown = 1;  ///< FR_DOWN

HTREEITEM Next(HWND tree, WPARAM which, HTREEITEM item) {
  return reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

std::wstring EntryText(HWND tree, HTREEITEM entry) {
  std::wstring text(300, L'\0');
  TVITEMW item{};
  item.mask = TVIF_TEXT;
  item.hItem = entry;
  item.pszText = text.data();
  item.cchTextMax = static_cast<int>(text.size());
  if (SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) == 0) return {};
  return item.pszText;
}

}  // namespace

std::wstring WindowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::wstring PageText(HWND page) {
  GETTEXTLENGTHEX all{GTL_NUMCHARS, 1200};
  const auto length =
      static_cast<std::size_t>(SendMessageW(page, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&all), 0));
  std::wstring raw(length + 1, L'\0');
  GETTEXTEX how{static_cast<DWORD>(2 * raw.size()), GT_DEFAULT, 1200, nullptr, nullptr};
  SendMessageW(page, EM_GETTEXTEX, reinterpret_cast<WPARAM>(&how), reinterpret_cast<LPARAM>(raw.data()));
  std::wstring text;
  for (const wchar_t character : raw) {
    if (character == L'\r')
      text += L'\n';
    else if (character != L'\0' && character != L'\n')
      text += character;
  }
  return text;
}

std::wstring SelectedText(HWND page) {
  std::wstring text(10'000, L'\0');
  const LRESULT length = SendMessageW(page, EM_GETSELTEXT, 0, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::wstring MarkedEntry(HWND tree) {
  const HTREEITEM marked = Next(tree, TVGN_CARET, nullptr);
  return marked == nullptr ? std::wstring() : EntryText(tree, marked);
}

HTREEITEM EntryOf(HWND tree, const std::wstring& title) {
  std::vector<HTREEITEM> waiting{Next(tree, TVGN_ROOT, nullptr)};
  while (!waiting.empty()) {
    const HTREEITEM item = waiting.back();
    waiting.pop_back();
    if (item == nullptr) continue;
    if (EntryText(tree, item) == title) return item;
    waiting.push_back(Next(tree, TVGN_NEXT, item));
    waiting.push_back(Next(tree, TVGN_CHILD, item));
  }
  return nullptr;
}

void Press(HWND window, WPARAM key, int held) {
  BYTE before[256];
  GetKeyboardState(before);
  BYTE keys[256]{};
  if (held != 0) keys[held] = 0x80;
  SetKeyboardState(keys);
  SendMessageW(window, held == VK_MENU ? WM_SYSKEYDOWN : WM_KEYDOWN, key, 1);
  SetKeyboardState(before);
}

void Type(HWND edit, const std::wstring& text) {
  for (const wchar_t character : text) SendMessageW(edit, WM_CHAR, character, 1);
}

LONG PlaceOf(HWND page, const std::wstring& text, LONG from) {
  FINDTEXTEXW find{};
  find.chrg = {from, -1};
  find.lpstrText = text.c_str();
  return static_cast<LONG>(SendMessageW(page, EM_FINDTEXTEXW, kDown, reinterpret_cast<LPARAM>(&find)));
}

bool IsLink(HWND page, LONG place) {
  CHARRANGE before{};
  SendMessageW(page, EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&before));
  CHARRANGE range{place, place + 1};
  SendMessageW(page, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
  CHARFORMAT2W format{};
  format.cbSize = sizeof format;
  SendMessageW(page, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
  SendMessageW(page, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&before));
  return (format.dwEffects & CFE_LINK) != 0;
}

void ClickLink(HWND page, const std::wstring& text) {
  LONG place = PlaceOf(page, text);
  while (place >= 0 && !IsLink(page, place)) place = PlaceOf(page, text, place + 1);
  CHARRANGE start{place, place};
  SendMessageW(page, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&start));
  SendMessageW(page, EM_SCROLLCARET, 0, 0);
  POINTL at{};
  SendMessageW(page, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&at), place);
  const LPARAM point = MAKELPARAM(at.x + 4, at.y + 4);
  SendMessageW(page, WM_MOUSEMOVE, 0, point);
  SendMessageW(page, WM_LBUTTONDOWN, MK_LBUTTON, point);
  SendMessageW(page, WM_LBUTTONUP, 0, point);
}

}  // namespace dayvane::help::testing
