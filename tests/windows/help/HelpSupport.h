// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>

#include "windows/files/Win32.h"

/// What the tests of help read from its windows.
namespace dayvane::help::testing {

/// The help file that is shipped, as it was built, in the program's form.
inline std::string ShippedHelpFile(std::string native) {
  std::ranges::replace(native, '/', '\\');
  return "Z:" + native;
}

/// The windows of a help window, by the names of their classes.
struct HelpWindow {
  HWND window;

  HWND Child(const wchar_t* className) const { return FindWindowExW(window, nullptr, className, nullptr); }
  HWND Page() const { return Child(L"RICHEDIT50W"); }
  HWND Toolbar() const { return Child(TOOLBARCLASSNAMEW); }
  HWND Navigation() const { return Child(L"Dayvane.HelpNavigation"); }
  HWND Tree() const { return FindWindowExW(Navigation(), nullptr, WC_TREEVIEWW, nullptr); }
  HWND Search() const { return FindWindowExW(Navigation(), nullptr, L"EDIT", nullptr); }
  HWND Found() const { return FindWindowExW(Navigation(), nullptr, L"LISTBOX", nullptr); }
  HWND FindBar() const { return Child(L"Dayvane.HelpFindBar"); }
  HWND Words() const { return FindWindowExW(FindBar(), nullptr, L"EDIT", nullptr); }
};

std::wstring WindowText(HWND window);

/// The text of a page, its paragraphs ended by line feeds, without what tables are made of.
std::wstring PageText(HWND page);

/// The text of what is selected on a page.
std::wstring SelectedText(HWND page);

/// Title of the entry that is marked in the contents; empty when none is.
std::wstring MarkedEntry(HWND tree);

/// The entry of a title, wherever it stands; null when there is none.
HTREEITEM EntryOf(HWND tree, const std::wstring& title);

/// Presses a key where it arrives; `held` is VK_CONTROL, VK_MENU or VK_SHIFT, or 0.
void Press(HWND window, WPARAM key, int held = 0);

/// Types a text into an edit box.
void Type(HWND edit, const std::wstring& text);

/// Clicks the first place of a text that is a link on a page.
void ClickLink(HWND page, const std::wstring& text);

/// Whether a place of a page is marked as a link.
bool IsLink(HWND page, LONG place);

/// First place of a text on a page, -1 where it is not.
LONG PlaceOf(HWND page, const std::wstring& text, LONG from = 0);

}  // namespace dayvane::help::testing
