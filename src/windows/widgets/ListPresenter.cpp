// SPDX-License-Identifier: MIT
#include "windows/widgets/ListPresenter.h"

#include <algorithm>

#include "base/ScopedValue.h"
#include "windows/widgets/TextCut.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

using controls::ListStyle;

namespace {

// At 96 dots per inch.
constexpr int kLargeImage = 48;
constexpr int kSmallImage = 16;
constexpr SIZE kLargeCell{120, 88};
constexpr SIZE kSmallCell{220, 20};
constexpr int kListCellWidth = 220;
constexpr int kRoomBesideCell = 12;

DWORD ViewOf(ListStyle style) {
  switch (style) {
    case ListStyle::LargeIcons:
      return LV_VIEW_ICON;
    case ListStyle::SmallIcons:
      return LV_VIEW_SMALLICON;
    case ListStyle::List:
      return LV_VIEW_LIST;
    default:
      return LV_VIEW_DETAILS;
  }
}

void Select(HWND list, int row, UINT state) {
  LVITEMW item{};
  item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  item.state = state;
  SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

}  // namespace

ListPresenter::ListPresenter(controls::ListView& control, Icons& icons, HWND parent, const SharedLook& look)
    : ChildWindow(control,
                  {.className = WC_LISTVIEWW,
                   .style = LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS |
                            LVS_AUTOARRANGE | WS_TABSTOP | WS_CLIPSIBLINGS,
                   .extendedStyle = WS_EX_CLIENTEDGE},
                  parent, look),
      m_control(control),
      m_icons(icons),
      m_header(control) {
  constexpr DWORD kLook = LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP | LVS_EX_LABELTIP | LVS_EX_DOUBLEBUFFER;
  SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, kLook, kLook);
  SetWindowTheme(Handle(), L"Explorer", nullptr);
  m_connections.push_back(control.ContentsWillChange.ConnectScoped([this] { BeginChange(); }));
  m_connections.push_back(control.ContentsChanged.ConnectScoped([this] { EndChange(); }));
  m_connections.push_back(control.SelectionChanged.ConnectScoped([this] { ShowSelection(); }));
  m_isReady = true;
  ShowSizes();
  Show();
  EndChange();
}

void ListPresenter::SetLook(const SharedLook& look) {
  ChildWindow::SetLook(look);
  ShowSizes();
  m_header.ForgetWidths();
  m_header.ShowWidths(Handle(), *look);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ListPresenter::ShowSizes() {
  const Look& look = *CurrentLook();
  for (const auto& [kind, pixels] : {std::pair{LVSIL_NORMAL, kLargeImage}, std::pair{LVSIL_SMALL, kSmallImage}})
    SendMessageW(Handle(), LVM_SETIMAGELIST, static_cast<WPARAM>(kind),
                 reinterpret_cast<LPARAM>(m_icons.ImagesOf(look.Pixels(pixels))));
  const SIZE cell = m_control.View() == ListStyle::SmallIcons ? kSmallCell : kLargeCell;
  SendMessageW(Handle(), LVM_SETICONSPACING, 0, MAKELPARAM(look.Pixels(cell.cx), look.Pixels(cell.cy)));
}

int ListPresenter::ImagePixels() const {
  return CurrentLook()->Pixels(m_control.View() == ListStyle::LargeIcons ? kLargeImage : kSmallImage);
}

void ListPresenter::SetListName(const std::string& name) {
  m_name = name;
  ShowEmptyText();
}

void ListPresenter::SetSpokenDetail(const std::string& detail) {
  m_detail = detail;
  ShowEmptyText();
}

void ListPresenter::ShowEmptyText() {
  std::string name = m_name;
  if (!m_detail.empty()) name += ", " + m_detail;
  if (m_control.Count() == 0 && !m_control.EmptyText().empty()) name += ". " + m_control.EmptyText();
  if (name == m_shownName) return;
  m_shownName = name;
  SetSpokenName(name);
}

void ListPresenter::ShowControl() {
  ShowStyle();
  m_header.Show(Handle(), *CurrentLook());
  ShowEmptyText();
  InvalidateRect(Handle(), nullptr, m_control.Count() == 0 ? TRUE : FALSE);
}

void ListPresenter::ShowStyle() {
  const ListStyle style = m_control.View();
  if (style == m_shownStyle && m_control.Arrange() == m_shownArrange) return;
  m_shownStyle = style;
  m_shownArrange = m_control.Arrange();
  const ScopedValue showing(m_showing, true);
  const LONG_PTR other = GetWindowLongPtrW(Handle(), GWL_STYLE) & ~static_cast<LONG_PTR>(LVS_ALIGNMASK);
  const bool down = m_control.Arrange() == controls::ListArrange::Left;
  SetWindowLongPtrW(Handle(), GWL_STYLE, other | (down ? LVS_ALIGNLEFT : LVS_ALIGNTOP));
  SendMessageW(Handle(), LVM_SETVIEW, ViewOf(style), 0);
  ShowSizes();  // a view may begin with spaces of its own
  if (style == ListStyle::LargeIcons || style == ListStyle::SmallIcons)
    SendMessageW(Handle(), LVM_ARRANGE, LVA_DEFAULT, 0);
  if (style == ListStyle::List) SendMessageW(Handle(), LVM_SETCOLUMNWIDTH, 0, CurrentLook()->Pixels(kListCellWidth));
  ScrollToSelection();
  // What the other style drew would be left in places.
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ListPresenter::BeginChange() {
  if (!m_changing && m_control.Count() > 0)
    m_scroll.Remember(Handle(), m_control.Row(0).key, m_control.SelectedKey(), RowOfSelection());
  m_changing = true;
}

void ListPresenter::EndChange() {
  m_changing = false;
  const ScopedValue showing(m_showing, true);
  SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
  SendMessageW(Handle(), LVM_SETITEMCOUNT, m_control.Count(), LVSICF_NOSCROLL);
  Select(Handle(), -1, 0);
  m_header.ForgetWidths();
  m_header.Show(Handle(), *CurrentLook());
  ShowEmptyText();
  if (m_control.Count() > 0) m_scroll.Restore(Handle(), m_control.Find(m_scroll.KnownKey()) != nullptr);
  ShowSelection();
  SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(Handle(), nullptr, TRUE);
}

int ListPresenter::SelectedRow() const {
  return static_cast<int>(SendMessageW(Handle(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

int ListPresenter::RowOfSelection() const {
  const controls::ListItem* item = m_control.SelectedItem();
  return item == nullptr || m_changing ? -1 : static_cast<int>(m_control.RowOf(*item));
}

void ListPresenter::ShowSelection() {
  const int row = RowOfSelection();
  if (row == SelectedRow()) return;
  const ScopedValue showing(m_showing, true);
  if (row < 0) return Select(Handle(), -1, 0);
  // A list that is filled again gets its selection back; a user who had scrolled away from it stays there, whatever the
  // window does with a row that gets the focus.
  const bool stays = m_scroll.ScrolledAwayFrom(m_control.SelectedKey());
  ListScroll place;
  place.Remember(Handle(), {}, {}, -1);
  Select(Handle(), row, LVIS_SELECTED | LVIS_FOCUSED);
  if (stays)
    place.Restore(Handle(), true);
  else
    ScrollToSelection();
}

void ListPresenter::ScrollToSelection() {
  const int row = RowOfSelection();
  if (row >= 0) SendMessageW(Handle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

std::wstring ListPresenter::TextAt(std::size_t row, std::size_t column) const {
  std::wstring text = ShownText(m_control.Row(row).Text(column));
  const bool isPath =
      column < m_control.Columns().size() && m_control.Columns()[column].kind == controls::ColumnKind::Path;
  // Both ends of a path matter. Who asks for it otherwise than to draw it gets it whole.
  if (!isPath || !m_painting || m_control.View() != ListStyle::Details) return text;
  const auto width = static_cast<int>(SendMessageW(Handle(), LVM_GETCOLUMNWIDTH, column, 0));
  return CutInTheMiddle(text, CurrentLook()->TextFont(), width - CurrentLook()->Pixels(kRoomBesideCell));
}

void ListPresenter::GiveRow(LVITEMW& item) {
  const auto row = static_cast<std::size_t>(item.iItem);
  const bool isThere = item.iItem >= 0 && row < Count();
  if ((item.mask & LVIF_TEXT) != 0) {
    std::wstring& given = m_given[m_nextGiven];
    m_nextGiven = (m_nextGiven + 1) % m_given.size();
    given = isThere ? TextAt(row, static_cast<std::size_t>(item.iSubItem)) : std::wstring();
    item.pszText = given.data();
  }
  if ((item.mask & LVIF_IMAGE) == 0) return;
  const bool large = m_control.View() == ListStyle::LargeIcons;
  item.iImage = isThere ? m_icons.IndexOf(large ? m_control.LargeImages() : m_control.SmallImages(),
                                          m_control.Row(row).icon, ImagePixels())
                        : I_IMAGENONE;
}

LRESULT ListPresenter::FindByName(const NMLVFINDITEMW& search) const {
  if ((search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || search.lvfi.psz == nullptr) return -1;
  const std::wstring wanted = search.lvfi.psz;
  const auto length = static_cast<int>(wanted.size());
  for (std::size_t step = 0; step < Count(); ++step) {
    const std::size_t row = (static_cast<std::size_t>(std::max(search.iStart, 0)) + step) % Count();
    const std::wstring name = ShownText(m_control.Row(row).text);
    if (name.size() >= wanted.size() &&
        CompareStringOrdinal(name.c_str(), length, wanted.c_str(), length, TRUE) == CSTR_EQUAL)
      return static_cast<LRESULT>(row);
  }
  return -1;
}

LRESULT ListPresenter::OnDraw(NMLVCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_POSTPAINT) DrawEmptyText(draw.nmcd.hdc);
  if (draw.nmcd.dwDrawStage != CDDS_PREPAINT) return CDRF_DODEFAULT;
  return Count() == 0 && !m_control.EmptyText().empty() ? CDRF_NOTIFYPOSTPAINT : CDRF_DODEFAULT;
}

void ListPresenter::DrawEmptyText(HDC device) const {
  constexpr int kMargin = 24;  // at 96 dots per inch
  const int margin = CurrentLook()->Pixels(kMargin);
  RECT room{};
  GetClientRect(Handle(), &room);
  InflateRect(&room, -margin, -margin);
  const std::wstring text = ShownText(m_control.EmptyText());
  RECT words = room;
  const HGDIOBJ font = SelectObject(device, CurrentLook()->TextFont());
  DrawTextW(device, text.c_str(), -1, &words, DT_CALCRECT | DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
  room.top = std::max(room.top, (room.top + room.bottom - (words.bottom - words.top)) / 2);
  const COLORREF colour = SetTextColor(device, GetSysColor(COLOR_GRAYTEXT));
  const int mode = SetBkMode(device, TRANSPARENT);
  DrawTextW(device, text.c_str(), -1, &room, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
  SetBkMode(device, mode);
  SetTextColor(device, colour);
  SelectObject(device, font);
}

}  // namespace dayvane::widgets
