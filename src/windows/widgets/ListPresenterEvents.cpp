// SPDX-License-Identifier: MIT

// What a list's window tells of its user.

#include "base/ScopedValue.h"
#include "controls/Keys.h"
#include "windows/widgets/Lengths.h"
#include "windows/widgets/ListPresenter.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

bool IsPress(UINT message) {
  return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

}  // namespace

std::optional<LRESULT> ListPresenter::OnNotify(NMHDR& notice) {
  if (!IsReady()) return std::nullopt;
  switch (notice.code) {
    case LVN_GETDISPINFOW:
      GiveRow(reinterpret_cast<NMLVDISPINFOW&>(notice).item);
      return 0;
    case LVN_ODFINDITEMW:
      return FindByName(reinterpret_cast<const NMLVFINDITEMW&>(notice));
    case NM_CUSTOMDRAW:
      return OnDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(notice));
    case LVN_GETINFOTIPW:
      GiveTip(reinterpret_cast<NMLVGETINFOTIPW&>(notice));
      return 0;
    case LVN_COLUMNCLICK:
      m_control.ColumnClick.Raise(static_cast<std::size_t>(reinterpret_cast<const NMLISTVIEW&>(notice).iSubItem) + 1);
      return 0;
    case LVN_ITEMCHANGED:
      if ((reinterpret_cast<const NMLISTVIEW&>(notice).uChanged & LVIF_STATE) != 0) SelectionMoved();
      return 0;
    case NM_CLICK:
    case NM_RCLICK:
      FinishPress();
      RaiseMouseUp(notice.code == NM_CLICK ? controls::kLeftButton : controls::kRightButton,
                   reinterpret_cast<const NMITEMACTIVATE&>(notice).ptAction);
      return 0;
    case NM_DBLCLK:
      if (reinterpret_cast<const NMITEMACTIVATE&>(notice).iItem >= 0) m_control.DblClick.Raise();
      return 0;
    default:
      return std::nullopt;
  }
}

LRESULT ListPresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!IsReady()) return ChildWindow::OnMessage(message, wParam, lParam);
  if (IsPress(message)) return Press(message, wParam, lParam);
  if (const auto key = m_key.Heard(message, wParam, lParam)) {
    const LRESULT answer = ChildWindow::OnMessage(message, wParam, lParam);
    RaiseKeyUp(*key);
    return answer;
  }
  switch (message) {
    case WM_PAINT:
    case WM_PRINTCLIENT: {
      const ScopedValue painting(m_painting, true);
      return ChildWindow::OnMessage(message, wParam, lParam);
    }
    case WM_CONTEXTMENU:
      // The menu key counts as Alt+F10; the right button is told when it is released.
      if (lParam == -1) RaiseKeyUp({controls::kKeyF10, controls::kAltMask});
      return 0;
    case WM_NOTIFY:
      m_header.OnNotify(Handle(), *reinterpret_cast<const NMHDR*>(lParam), *CurrentLook());
      break;
    default:
      break;
  }
  const LRESULT answer = ChildWindow::OnMessage(message, wParam, lParam);
  if (message == WM_SIZE) {
    m_header.ShowWidths(Handle(), *CurrentLook());
    InvalidateRect(Handle(), nullptr, Count() == 0 ? TRUE : FALSE);
  }
  return answer;
}

LRESULT ListPresenter::Press(UINT message, WPARAM wParam, LPARAM lParam) {
  LVHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  m_pressedRow = static_cast<int>(SendMessageW(Handle(), LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
  LRESULT answer = 0;
  {
    // The window waits until it knows whether the mouse is dragged, and may tell of its release before it returns.
    const ScopedValue pressing(m_pressing, true);
    answer = ChildWindow::OnMessage(message, wParam, lParam);
    FinishPress();
  }
  return answer;
}

void ListPresenter::FinishPress() {
  if (!m_pressing) return;
  m_pressing = false;
  if (m_pressedRow < 0) return SelectionMoved();
  Click(m_pressedRow);
  ShowSelection();  // the middle button selects too
}

void ListPresenter::SelectionMoved() {
  if (m_showing || m_pressing || m_changing) return;
  if (controls::IsAtWork()) return m_deferred.AfterWork([this] { SelectionMoved(); });
  const int row = SelectedRow();
  if (row == RowOfSelection()) return;
  if (row >= 0)
    Click(row);
  else
    m_control.SetSelectedItem(nullptr);
}

void ListPresenter::Click(int row) {
  m_scroll.ForgetSelection();
  if (row < 0 || static_cast<std::size_t>(row) >= Count()) return;
  m_control.Click(m_control.Item(m_control.Row(static_cast<std::size_t>(row)).key));
}

void ListPresenter::GiveTip(NMLVGETINFOTIPW& tip) const {
  const auto row = static_cast<std::size_t>(tip.iItem);
  if (tip.iItem < 0 || row >= Count() || m_control.View() != controls::ListStyle::Details) return;
  for (std::size_t column = 0; column < m_control.Columns().size(); ++column)
    if (m_control.Columns()[column].kind == controls::ColumnKind::Path)
      lstrcpynW(tip.pszText, TextAt(row, column).c_str(), tip.cchTextMax);
}

void ListPresenter::RaiseMouseUp(int button, POINT at) {
  TellSelectedPosition();
  MapWindowPoints(Handle(), GetParent(Handle()), &at, 1);
  const UINT dpi = CurrentLook()->Dpi();
  m_control.MouseUp.Raise(button, ToTwips(at.x, dpi), ToTwips(at.y, dpi));
}

void ListPresenter::RaiseKeyUp(const controls::MenuKey& key) {
  TellSelectedPosition();
  m_control.KeyUp.Raise(key.key, key.modifiers);
}

void ListPresenter::TellSelectedPosition() {
  const int row = RowOfSelection();
  RECT place{LVIR_BOUNDS, 0, 0, 0};
  if (row < 0 ||
      SendMessageW(Handle(), LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place)) == 0)
    return;
  MapWindowPoints(Handle(), GetParent(Handle()), reinterpret_cast<POINT*>(&place), 2);
  const UINT dpi = CurrentLook()->Dpi();
  m_control.SetSelectedPosition(ToTwips(place.left, dpi), ToTwips(place.top, dpi));
}

}  // namespace dayvane::widgets
