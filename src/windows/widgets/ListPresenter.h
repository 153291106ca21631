// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>

#include "controls/Deferred.h"
#include "controls/ListView.h"
#include "windows/widgets/ChildWindow.h"
#include "windows/widgets/Icons.h"
#include "windows/widgets/ListHeader.h"
#include "windows/widgets/ListScroll.h"
#include "windows/widgets/PressedKey.h"

namespace dayvane::widgets {

/// Shows a list in its four styles. The window asks for each row that it draws: rows, order and selection are the
/// control's. Positions that it tells the control are those in the list's container, where a menu is popped up.
class ListPresenter : public ChildWindow {
 public:
  ListPresenter(controls::ListView& control, Icons& icons, HWND parent, const SharedLook& look);

  // For screen readers.
  void SetListName(const std::string& name);
  void SetSpokenDetail(const std::string& detail);

  void SetLook(const SharedLook& look) override;

 protected:
  void ShowControl() override;
  std::optional<LRESULT> OnNotify(NMHDR& notice) override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void ShowStyle();
  void ShowSizes();
  void ShowEmptyText();
  void ShowSelection();
  void ScrollToSelection();
  void BeginChange();
  void EndChange();

  // What the window asks.
  std::size_t Count() const { return m_changing ? 0 : m_control.Count(); }
  void GiveRow(LVITEMW& item);
  std::wstring TextAt(std::size_t row, std::size_t column) const;
  LRESULT FindByName(const NMLVFINDITEMW& search) const;
  void GiveTip(NMLVGETINFOTIPW& tip) const;
  LRESULT OnDraw(NMLVCUSTOMDRAW& draw) const;
  void DrawEmptyText(HDC device) const;
  int ImagePixels() const;

  // What the user does.
  LRESULT Press(UINT message, WPARAM wParam, LPARAM lParam);
  void FinishPress();
  void SelectionMoved();
  void Click(int row);
  void RaiseMouseUp(int button, POINT at);
  void RaiseKeyUp(const controls::MenuKey& key);
  void TellSelectedPosition();
  int SelectedRow() const;  ///< in the window; -1 for none
  int RowOfSelection() const;
  bool IsReady() const { return m_isReady; }

  controls::ListView& m_control;
  Icons& m_icons;
  bool m_isReady = false;
  bool m_showing = false;  ///< what changes in the window is not the user's doing
  bool m_changing = false;
  bool m_painting = false;
  bool m_pressing = false;
  int m_pressedRow = -1;
  ListHeader m_header;
  ListScroll m_scroll;
  PressedKey m_key;
  std::optional<controls::ListStyle> m_shownStyle;
  std::optional<controls::ListArrange> m_shownArrange;
  std::string m_name;
  std::string m_detail;
  std::string m_shownName;
  std::array<std::wstring, 4> m_given;  ///< texts that the window may still read
  std::size_t m_nextGiven = 0;
  controls::Deferred m_deferred;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
