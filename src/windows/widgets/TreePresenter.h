// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>
#include <unordered_map>

#include "controls/Deferred.h"
#include "controls/TreeView.h"
#include "windows/widgets/ChildWindow.h"
#include "windows/widgets/Icons.h"
#include "windows/widgets/PressedKey.h"

namespace dayvane::widgets {

/// Shows a tree. Nodes that the user opened are open again after the tree was filled anew, as far as their keys are
/// still there. Positions that it tells the control are those in the tree, where a menu is popped up.
class TreePresenter : public ChildWindow {
 public:
  TreePresenter(controls::TreeView& control, Icons& icons, HWND parent, const SharedLook& look);

  void SetLook(const SharedLook& look) override;

  /// The node's item in the window; nullptr for a node that is not shown.
  HTREEITEM ItemOf(const controls::TreeNode* node) const;

 protected:
  void ShowControl() override;
  std::optional<LRESULT> OnNotify(NMHDR& notice) override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  static constexpr int kNodeImage = 16;  ///< at 96 dots per inch

  // What the window shows.
  void ShowImages();
  void BeginChange();
  void EndChange();
  void Insert(const controls::TreeNode& node, HTREEITEM parent);
  void OpenRoots();
  void OpenAgain();
  void OpenPathTo(const controls::TreeNode* node);
  void ShowSelection();
  void ScrollBack();
  std::optional<RECT> PlaceOf(HTREEITEM item, bool textAlone) const;  ///< in the window, as far as it is drawn
  bool IsInView(HTREEITEM item) const;
  HTREEITEM SelectedInWindow() const;

  // What the window asks and what the user does.
  void GiveImage(TVITEMW& item);
  void GiveTip(NMTVGETINFOTIPW& tip) const;
  void NoteOpening(const NMTREEVIEWW& notice);
  LRESULT Press(UINT message, WPARAM wParam, LPARAM lParam);
  void FinishPress();
  void SelectionMoved();
  void Click(const controls::TreeNode* node);
  void RaiseMouseUp(int button, POINT at);
  void RaiseMenuKey();
  const controls::TreeNode* NodeOf(HTREEITEM item) const;

  controls::TreeView& m_control;
  Icons& m_icons;
  bool m_isReady = false;
  bool m_showing = false;  ///< what changes in the window is not the user's doing
  bool m_changing = false;
  bool m_pressing = false;
  POINT m_pressedAt{};
  HTREEITEM m_pressedItem = nullptr;
  HTREEITEM m_selectedBefore = nullptr;  ///< the press
  PressedKey m_key;
  std::unordered_map<const controls::TreeNode*, HTREEITEM> m_items;
  std::set<std::string> m_open;        ///< keys of open nodes
  std::set<std::string> m_knownRoots;  ///< roots that were opened once

  // Where the user had scrolled to, kept while the tree is filled again.
  std::string m_topKey;
  std::string m_selectedKey;
  bool m_selectionInView = false;

  controls::Deferred m_deferred;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
