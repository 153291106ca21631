// SPDX-License-Identifier: MIT

// What a tree's window tells of its user.

#include "base/ScopedValue.h"
#include "controls/Keys.h"
#include "windows/widgets/DayWords.h"
#include "windows/widgets/Lengths.h"
#include "windows/widgets/TreePresenter.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

using controls::TreeNode;

namespace {

/// A selection in a tree that does not have the keyboard is muted, but seen: a quarter of its colour.
COLORREF MutedSelection() {
  const COLORREF selection = GetSysColor(COLOR_HIGHLIGHT);
  const COLORREF window = GetSysColor(COLOR_WINDOW);
  const auto mix = [](int part, int rest) { return static_cast<BYTE>((part + 3 * rest) / 4); };
  return RGB(mix(GetRValue(selection), GetRValue(window)), mix(GetGValue(selection), GetGValue(window)),
             mix(GetBValue(selection), GetBValue(window)));
}

LRESULT DrawMuted(NMTVCUSTOMDRAW& draw, bool hasKeyboard) {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || hasKeyboard || (draw.nmcd.uItemState & CDIS_SELECTED) == 0)
    return CDRF_DODEFAULT;
  draw.clrText = GetSysColor(COLOR_WINDOWTEXT);
  draw.clrTextBk = MutedSelection();
  return CDRF_DODEFAULT;
}

}  // namespace

std::optional<LRESULT> TreePresenter::OnNotify(NMHDR& notice) {
  if (!m_isReady) return std::nullopt;
  switch (notice.code) {
    case TVN_GETDISPINFOW:
      GiveImage(reinterpret_cast<NMTVDISPINFOW&>(notice).item);
      return 0;
    case NM_CUSTOMDRAW:
      return DrawMuted(reinterpret_cast<NMTVCUSTOMDRAW&>(notice), GetFocus() == Handle());
    case TVN_GETINFOTIPW:
      GiveTip(reinterpret_cast<NMTVGETINFOTIPW&>(notice));
      return 0;
    case TVN_ITEMEXPANDEDW:
      NoteOpening(reinterpret_cast<const NMTREEVIEWW&>(notice));
      return 0;
    case TVN_SELCHANGEDW:
      // A tree that gets the keyboard selects its first node by itself.
      if (reinterpret_cast<const NMTREEVIEWW&>(notice).action != TVC_UNKNOWN) SelectionMoved();
      return 0;
    case NM_CLICK:
    case NM_RCLICK:
      FinishPress();
      RaiseMouseUp(notice.code == NM_CLICK ? controls::kLeftButton : controls::kRightButton, m_pressedAt);
      return notice.code == NM_RCLICK ? 1 : 0;  // with 1 no menu is asked for: the program has popped it up
    default:
      return std::nullopt;
  }
}

LRESULT TreePresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return ChildWindow::OnMessage(message, wParam, lParam);
  if (const auto key = m_key.Heard(message, wParam, lParam)) {
    const LRESULT answer = ChildWindow::OnMessage(message, wParam, lParam);
    // The node's menu without a mouse.
    if (key->key == controls::kKeyF10 && key->modifiers == controls::kAltMask) RaiseMenuKey();
    return answer;
  }
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
      return Press(message, wParam, lParam);
    case WM_CONTEXTMENU:
      if (lParam == -1) RaiseMenuKey();
      return 0;
    default:
      return ChildWindow::OnMessage(message, wParam, lParam);
  }
}

void TreePresenter::GiveImage(TVITEMW& item) {
  const auto* node = m_changing ? nullptr : reinterpret_cast<const TreeNode*>(item.lParam);
  const int image = m_icons.IndexOf(node == nullptr ? nullptr : m_control.Images(), node == nullptr ? 0 : node->image,
                                    CurrentLook()->Pixels(kNodeImage));
  if ((item.mask & TVIF_IMAGE) != 0) item.iImage = image;
  if ((item.mask & TVIF_SELECTEDIMAGE) != 0) item.iSelectedImage = image;
}

void TreePresenter::GiveTip(NMTVGETINFOTIPW& tip) const {
  const auto* node = m_changing ? nullptr : reinterpret_cast<const TreeNode*>(tip.lParam);
  if (node != nullptr && node->day) lstrcpynW(tip.pszText, ShownText(DayWords(*node->day)).c_str(), tip.cchTextMax);
}

void TreePresenter::NoteOpening(const NMTREEVIEWW& notice) {
  if (m_changing || m_showing) return;
  const auto* node = reinterpret_cast<const TreeNode*>(notice.itemNew.lParam);
  if (node == nullptr) return;
  if (notice.action == TVE_COLLAPSE)
    m_open.erase(node->key);
  else
    m_open.insert(node->key);
}

LRESULT TreePresenter::Press(UINT message, WPARAM wParam, LPARAM lParam) {
  TVHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  SendMessageW(Handle(), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  m_pressedAt = hit.pt;
  // What lies beside the node itself only opens or closes it.
  m_pressedItem = (hit.flags & TVHT_ONITEM) != 0 ? hit.hItem : nullptr;
  if (GetFocus() != Handle()) SetFocus(Handle());
  m_selectedBefore = SelectedInWindow();
  // The window waits until it knows whether the mouse is dragged, and may tell of its release before it returns.
  const ScopedValue pressing(m_pressing, true);
  const LRESULT answer = ChildWindow::OnMessage(message, wParam, lParam);
  FinishPress();
  return answer;
}

void TreePresenter::FinishPress() {
  if (!m_pressing) return;
  m_pressing = false;
  if (m_pressedItem != nullptr)
    Click(NodeOf(m_pressedItem));
  else if (SelectedInWindow() != m_selectedBefore)
    SelectionMoved();  // a branch that is closed takes the selection of its nodes
}

void TreePresenter::SelectionMoved() {
  if (m_showing || m_pressing || m_changing) return;
  if (controls::IsAtWork()) return m_deferred.AfterWork([this] { SelectionMoved(); });
  const TreeNode* node = NodeOf(SelectedInWindow());
  if (node != nullptr && node != m_control.SelectedItem()) Click(node);
}

void TreePresenter::Click(const TreeNode* node) {
  m_selectedKey.clear();
  if (TreeNode* clicked = node == nullptr ? nullptr : m_control.Find(node->key)) m_control.Click(*clicked);
  ShowSelection();
}

void TreePresenter::RaiseMenuKey() {
  if (const auto place = PlaceOf(ItemOf(m_control.SelectedItem()), true))
    RaiseMouseUp(controls::kRightButton, {(place->left + place->right) / 2, (place->top + place->bottom) / 2});
}

void TreePresenter::RaiseMouseUp(int button, POINT at) {
  // Its frame counts too.
  RECT frame{};
  GetWindowRect(Handle(), &frame);
  ClientToScreen(Handle(), &at);
  const UINT dpi = CurrentLook()->Dpi();
  m_control.MouseUp.Raise(button, ToTwips(at.x - frame.left, dpi), ToTwips(at.y - frame.top, dpi));
}

}  // namespace dayvane::widgets
