// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "windows/files/Win32.h"

/// What a user sees in the windows of another process, and where a user would click.
namespace dayvane::session {

std::string TextOf(HWND window);
std::string ClassOf(HWND window);
bool IsShown(HWND window);

/// The middle of a rectangle of a window, on the screen.
POINT MiddleOf(HWND window, const RECT& rectangle);

// Lists
using Row = std::vector<std::string>;
int RowCount(HWND list);
std::vector<Row> Rows(HWND list);  ///< with the texts of all columns
std::vector<std::string> Names(HWND list);
int SelectedRow(HWND list);  ///< -1 for none
LRESULT ViewOf(HWND list);   ///< LV_VIEW_ICON …
POINT PlaceOfRow(HWND list, int row);
POINT PlaceOfHeader(HWND list, int column);
int ColumnWidth(HWND list, int column);

// Trees
struct Node {
  HTREEITEM item;
  std::string text;
  int depth;
};
std::vector<Node> Nodes(HWND tree);  ///< from the top, open or not
std::string SelectedNode(HWND tree);
POINT PlaceOfNode(HWND tree, HTREEITEM item);

// The calendar
SYSTEMTIME ChosenDay(HWND calendar);
POINT PlaceOfDay(HWND calendar, int day);  ///< of the month that is shown; throws when it is not found

// Toolbars
struct ToolButton {
  bool enabled;
  POINT place;
};
std::vector<ToolButton> ToolButtons(HWND toolbar);  ///< without separators

std::string StatusText(HWND statusBar);

}  // namespace dayvane::session
