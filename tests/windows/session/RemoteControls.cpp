// SPDX-License-Identifier: MIT
#include "tests/windows/session/RemoteControls.h"

#include <array>
#include <functional>
#include <stdexcept>

#include "tests/windows/session/RemoteMemory.h"
#include "windows/files/WideText.h"

namespace dayvane::session {

namespace {

POINT PlaceInMemory(HWND window, const RemoteMemory& memory) {
  return MiddleOf(window, memory.Read<RECT>());
}

Row ReadRow(HWND list, RemoteMemory& memory, int row, int columns) {
  Row texts;
  for (int column = 0; column < columns; ++column) {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = memory.Text();
    item.cchTextMax = RemoteMemory::kTextLength;
    memory.Write(item);
    memory.Ask(LVM_GETITEMTEXTW, static_cast<WPARAM>(row));
    texts.push_back(memory.ReadText());
  }
  (void)list;
  return texts;
}

std::vector<Row> ReadRows(HWND list, int columns) {
  RemoteMemory memory(list);
  std::vector<Row> rows;
  const int count = RowCount(list);
  for (int row = 0; row < count; ++row) rows.push_back(ReadRow(list, memory, row, columns));
  return rows;
}

HTREEITEM NextNode(HWND tree, WPARAM which, HTREEITEM item) {
  return reinterpret_cast<HTREEITEM>(Ask(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

std::string NodeText(RemoteMemory& memory, HTREEITEM item) {
  TVITEMW asked{};
  asked.mask = TVIF_TEXT;
  asked.hItem = item;
  asked.pszText = memory.Text();
  asked.cchTextMax = RemoteMemory::kTextLength;
  memory.Write(asked);
  memory.Ask(TVM_GETITEMW);
  return memory.ReadText();
}

}  // namespace

std::string TextOf(HWND window) {
  std::array<wchar_t, 2048> text{};
  try {
    // The system carries this one's text between processes.
    Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  } catch (const std::runtime_error&) {
    if (IsWindow(window) != 0) throw;
    return "";  // such as the splash window, which went while it was looked at
  }
  return files::FromWide(text.data()).value_or("(not UTF-16)");
}

std::string ClassOf(HWND window) {
  std::array<wchar_t, 256> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return files::FromWide(name.data()).value_or("");
}

bool IsShown(HWND window) {
  return IsWindowVisible(window) != 0;
}

POINT MiddleOf(HWND window, const RECT& rectangle) {
  POINT place{(rectangle.left + rectangle.right) / 2, (rectangle.top + rectangle.bottom) / 2};
  ClientToScreen(window, &place);
  return place;
}

int RowCount(HWND list) {
  return static_cast<int>(Ask(list, LVM_GETITEMCOUNT));
}

std::vector<Row> Rows(HWND list) {
  const auto header = reinterpret_cast<HWND>(Ask(list, LVM_GETHEADER));
  return ReadRows(list, static_cast<int>(Ask(header, HDM_GETITEMCOUNT)));
}

std::vector<std::string> Names(HWND list) {
  std::vector<std::string> names;
  for (const Row& row : ReadRows(list, 1)) names.push_back(row.front());
  return names;
}

int SelectedRow(HWND list) {
  return static_cast<int>(Ask(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

LRESULT ViewOf(HWND list) {
  return Ask(list, LVM_GETVIEW);
}

POINT PlaceOfRow(HWND list, int row) {
  RemoteMemory memory(list);
  memory.Write(RECT{LVIR_SELECTBOUNDS, 0, 0, 0});
  memory.Ask(LVM_GETITEMRECT, static_cast<WPARAM>(row));
  RECT rectangle = memory.Read<RECT>();
  // Not the middle of a row that is wider than the window.
  rectangle.right = rectangle.left + std::min<LONG>(rectangle.right - rectangle.left, 60);
  return MiddleOf(list, rectangle);
}

POINT PlaceOfHeader(HWND list, int column) {
  const auto header = reinterpret_cast<HWND>(Ask(list, LVM_GETHEADER));
  RemoteMemory memory(header);
  memory.Ask(HDM_GETITEMRECT, static_cast<WPARAM>(column));
  return PlaceInMemory(header, memory);
}

int ColumnWidth(HWND list, int column) {
  return static_cast<int>(Ask(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

std::vector<Node> Nodes(HWND tree) {
  RemoteMemory memory(tree);
  std::vector<Node> nodes;
  const std::function<void(HTREEITEM, int)> add = [&](HTREEITEM item, int depth) {
    for (; item != nullptr; item = NextNode(tree, TVGN_NEXT, item)) {
      nodes.push_back({item, NodeText(memory, item), depth});
      add(NextNode(tree, TVGN_CHILD, item), depth + 1);
    }
  };
  add(NextNode(tree, TVGN_ROOT, nullptr), 0);
  return nodes;
}

std::string SelectedNode(HWND tree) {
  const HTREEITEM item = NextNode(tree, TVGN_CARET, nullptr);
  if (item == nullptr) return "";
  RemoteMemory memory(tree);
  return NodeText(memory, item);
}

POINT PlaceOfNode(HWND tree, HTREEITEM item) {
  Ask(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
  RemoteMemory memory(tree);
  memory.Write(item);  // where its rectangle comes
  memory.Ask(TVM_GETITEMRECT, TRUE);
  return PlaceInMemory(tree, memory);
}

SYSTEMTIME ChosenDay(HWND calendar) {
  const RemoteMemory memory(calendar);
  memory.Ask(MCM_GETCURSEL);
  return memory.Read<SYSTEMTIME>();
}

POINT PlaceOfDay(HWND calendar, int day) {
  constexpr int kStep = 6;  // pixels, less than half of a day's place
  RemoteMemory memory(calendar);
  RECT room{};
  GetClientRect(calendar, &room);
  for (LONG y = 0; y < room.bottom; y += kStep)
    for (LONG x = 0; x < room.right; x += kStep) {
      MCHITTESTINFO hit{};
      hit.cbSize = MCHITTESTINFO_V1_SIZE;
      hit.pt = {x, y};
      memory.Write(hit);
      if (memory.Ask(MCM_HITTEST) != MCHT_CALENDARDATE || memory.Read<MCHITTESTINFO>().st.wDay != day) continue;
      POINT place{x + kStep / 2, y + kStep / 2};
      ClientToScreen(calendar, &place);
      return place;
    }
  throw std::runtime_error("the calendar shows no day " + std::to_string(day));
}

std::vector<ToolButton> ToolButtons(HWND toolbar) {
  RemoteMemory memory(toolbar);
  std::vector<ToolButton> buttons;
  const auto count = static_cast<WPARAM>(Ask(toolbar, TB_BUTTONCOUNT));
  for (WPARAM i = 0; i < count; ++i) {
    memory.Ask(TB_GETBUTTON, i);
    const auto button = memory.Read<TBBUTTON>();
    if ((button.fsStyle & BTNS_SEP) != 0) continue;
    memory.Ask(TB_GETITEMRECT, i);
    buttons.push_back({(button.fsState & TBSTATE_ENABLED) != 0, PlaceInMemory(toolbar, memory)});
  }
  return buttons;
}

std::string StatusText(HWND statusBar) {
  const RemoteMemory memory(statusBar);
  memory.Ask(SB_GETTEXTW, 0);
  return memory.ReadText(0);
}

}  // namespace dayvane::session
