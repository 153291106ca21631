// SPDX-License-Identifier: MIT
#include "windows/widgets/ListHeader.h"

#include "base/ScopedValue.h"
#include "windows/widgets/Lengths.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

int WidthOfColumn(HWND list, std::size_t column) {
  return static_cast<int>(SendMessageW(list, LVM_GETCOLUMNWIDTH, column, 0));
}

void ShowArrow(HWND list, std::size_t column, int arrow) {
  const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
  HDITEMW item{};
  item.mask = HDI_FORMAT;
  SendMessageW(header, HDM_GETITEMW, column, reinterpret_cast<LPARAM>(&item));
  item.fmt = (item.fmt & ~(HDF_SORTUP | HDF_SORTDOWN)) | arrow;
  SendMessageW(header, HDM_SETITEMW, column, reinterpret_cast<LPARAM>(&item));
}

}  // namespace

ListHeader::Heading ListHeader::HeadingOf(std::size_t column) const {
  const controls::ColumnHeader& header = m_control.Columns()[column];
  Heading heading{header.text, header.alignment == controls::Alignment::Right, 0};
  if (m_control.Sorted() && m_control.SortKey() == column)
    heading.arrow = m_control.Order() == controls::SortOrder::Ascending ? HDF_SORTUP : HDF_SORTDOWN;
  return heading;
}

void ListHeader::Show(HWND list, const Look& look) {
  const ScopedValue showing(m_showing, true);
  for (; m_shown.size() > m_control.Columns().size(); m_shown.pop_back())
    SendMessageW(list, LVM_DELETECOLUMN, m_shown.size() - 1, 0);
  for (std::size_t column = 0; column < m_control.Columns().size(); ++column) {
    Heading heading = HeadingOf(column);
    const bool isNew = column == m_shown.size();
    if (!isNew && m_shown[column] == heading) continue;
    std::wstring text = ShownText(heading.text);
    LVCOLUMNW shown{};
    shown.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
    shown.fmt = heading.isRight ? LVCFMT_RIGHT : LVCFMT_LEFT;
    shown.pszText = text.data();
    shown.iSubItem = static_cast<int>(column);
    SendMessageW(list, isNew ? LVM_INSERTCOLUMNW : LVM_SETCOLUMNW, column, reinterpret_cast<LPARAM>(&shown));
    ShowArrow(list, column, heading.arrow);
    if (isNew) m_shown.emplace_back();
    m_shown[column] = std::move(heading);
  }
  ShowWidths(list, look);
}

void ListHeader::ShowWidths(HWND list, const Look& look) {
  if (m_control.View() != controls::ListStyle::Details) return;
  const ScopedValue showing(m_showing, true);
  RECT room{};
  GetClientRect(list, &room);
  const std::vector<int> fitting = m_control.HasDesignWidths() ? m_fit.Widths(look, room.right) : std::vector<int>();
  for (std::size_t column = 0; column < m_shown.size(); ++column) {
    const int width = fitting.empty() ? ToPixels(m_control.Columns()[column].width, look.Dpi()) : fitting[column];
    if (width != WidthOfColumn(list, column)) SendMessageW(list, LVM_SETCOLUMNWIDTH, column, width);
  }
}

void ListHeader::OnNotify(HWND list, const NMHDR& notice, const Look& look) {
  if (m_showing || (notice.code != HDN_ITEMCHANGEDW && notice.code != HDN_ITEMCHANGEDA)) return;
  const auto& changed = reinterpret_cast<const NMHEADERW&>(notice);
  const auto column = static_cast<std::size_t>(changed.iItem);
  if (changed.pitem == nullptr || (changed.pitem->mask & HDI_WIDTH) == 0 || column >= m_shown.size()) return;
  TakeWidths(list, column, changed.pitem->cxy, look);
}

void ListHeader::TakeWidths(HWND list, std::size_t column, int width, const Look& look) {
  const bool all = m_control.HasDesignWidths();
  std::vector<int> widths;
  for (std::size_t other = 0; other < m_shown.size(); ++other) widths.push_back(WidthOfColumn(list, other));
  widths[column] = width;
  for (std::size_t other = 0; other < m_shown.size(); ++other)
    // Not through the control, which would raise Changed while only some of the widths are known.
    if (all && other != column) m_control.Columns()[other].width = ToTwips(widths[other], look.Dpi());
  m_control.SetColumnWidth(column, ToTwips(width, look.Dpi()));
}

}  // namespace dayvane::widgets
