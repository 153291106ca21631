// SPDX-License-Identifier: MIT
#include "windows/widgets/TreePresenter.h"

#include <cstring>

#include "base/ScopedValue.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

using controls::TreeNode;

namespace {

HTREEITEM NextItem(HWND tree, UINT which, HTREEITEM item = nullptr) {
  return reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

void SelectItem(HWND tree, UINT how, HTREEITEM item) {
  SendMessageW(tree, TVM_SELECTITEM, how, reinterpret_cast<LPARAM>(item));
}

void Expand(HWND tree, HTREEITEM item) {
  SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
}

}  // namespace

TreePresenter::TreePresenter(controls::TreeView& control, Icons& icons, HWND parent, const SharedLook& look)
    : ChildWindow(control,
                  {.className = WC_TREEVIEWW,
                   .style = TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP | TVS_INFOTIP |
                            WS_TABSTOP | WS_CLIPSIBLINGS,
                   .extendedStyle = WS_EX_CLIENTEDGE},
                  parent, look),
      m_control(control),
      m_icons(icons) {
  m_connections.push_back(control.ContentsWillChange.ConnectScoped([this] { BeginChange(); }));
  m_connections.push_back(control.ContentsChanged.ConnectScoped([this] { EndChange(); }));
  m_connections.push_back(control.SelectionChanged.ConnectScoped([this] { ShowSelection(); }));
  m_isReady = true;
  ShowImages();
  Show();
  EndChange();
}

void TreePresenter::SetLook(const SharedLook& look) {
  ChildWindow::SetLook(look);
  ShowImages();
}

void TreePresenter::ShowImages() {
  constexpr WPARAM kHeightOfTheFont = static_cast<WPARAM>(-1);
  SendMessageW(Handle(), TVM_SETIMAGELIST, TVSIL_NORMAL,
               reinterpret_cast<LPARAM>(m_icons.ImagesOf(CurrentLook()->Pixels(kNodeImage))));
  SendMessageW(Handle(), TVM_SETITEMHEIGHT, kHeightOfTheFont, 0);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void TreePresenter::ShowControl() {
  InvalidateRect(Handle(), nullptr, FALSE);  // its pictures may be others
}

HTREEITEM TreePresenter::ItemOf(const TreeNode* node) const {
  const auto found = m_items.find(node);
  return m_changing || found == m_items.end() ? nullptr : found->second;
}

const TreeNode* TreePresenter::NodeOf(HTREEITEM item) const {
  if (item == nullptr || m_changing) return nullptr;
  TVITEMW shown{};
  shown.mask = TVIF_PARAM | TVIF_HANDLE;
  shown.hItem = item;
  if (SendMessageW(Handle(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&shown)) == 0) return nullptr;
  return reinterpret_cast<const TreeNode*>(shown.lParam);
}

HTREEITEM TreePresenter::SelectedInWindow() const {
  return NextItem(Handle(), TVGN_CARET);
}

std::optional<RECT> TreePresenter::PlaceOf(HTREEITEM item, bool textAlone) const {
  if (item == nullptr) return std::nullopt;
  RECT place{};
  std::memcpy(&place, &item, sizeof(HTREEITEM));  // TVM_GETITEMRECT takes the item where it puts its place
  if (SendMessageW(Handle(), TVM_GETITEMRECT, textAlone ? TRUE : FALSE, reinterpret_cast<LPARAM>(&place)) == 0)
    return std::nullopt;
  return place;
}

bool TreePresenter::IsInView(HTREEITEM item) const {
  const auto place = PlaceOf(item, false);
  RECT room{};
  RECT both{};
  GetClientRect(Handle(), &room);
  return place && IntersectRect(&both, &*place, &room) != 0;
}

void TreePresenter::BeginChange() {
  if (!m_changing && !m_control.Roots().empty()) {
    const TreeNode* top = NodeOf(NextItem(Handle(), TVGN_FIRSTVISIBLE));
    m_topKey = top == nullptr ? std::string() : top->key;
    m_selectedKey = m_control.SelectedKey();
    m_selectionInView = IsInView(ItemOf(m_control.SelectedItem()));
  }
  m_changing = true;
}

void TreePresenter::EndChange() {
  const ScopedValue showing(m_showing, true);
  SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
  // While m_changing still holds: the items' nodes have gone.
  m_changing = true;
  SendMessageW(Handle(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
  m_items.clear();
  m_changing = false;
  for (const auto& root : m_control.Roots()) Insert(*root, TVI_ROOT);
  if (!m_control.Roots().empty()) {
    OpenRoots();
    OpenAgain();
    ScrollBack();
    ShowSelection();
  }
  SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void TreePresenter::Insert(const TreeNode& node, HTREEITEM parent) {
  std::wstring text = ShownText(node.text);
  TVINSERTSTRUCTW insert{};
  insert.hParent = parent;
  insert.hInsertAfter = TVI_LAST;
  insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
  insert.item.pszText = text.data();
  insert.item.lParam = reinterpret_cast<LPARAM>(&node);
  insert.item.iImage = I_IMAGECALLBACK;
  insert.item.iSelectedImage = I_IMAGECALLBACK;
  const auto item =
      reinterpret_cast<HTREEITEM>(SendMessageW(Handle(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
  m_items[&node] = item;
  for (const auto& child : node.children) Insert(*child, item);
}

void TreePresenter::OpenRoots() {
  for (const auto& root : m_control.Roots())
    if (m_knownRoots.insert(root->key).second) m_open.insert(root->key);
}

void TreePresenter::OpenAgain() {
  std::erase_if(m_open, [this](const std::string& key) { return m_control.Find(key) == nullptr; });
  for (const std::string& key : m_open) Expand(Handle(), ItemOf(m_control.Find(key)));
}

void TreePresenter::OpenPathTo(const TreeNode* node) {
  for (const TreeNode* above = node == nullptr ? nullptr : node->parent; above != nullptr; above = above->parent) {
    m_open.insert(above->key);
    Expand(Handle(), ItemOf(above));
  }
}

void TreePresenter::ScrollBack() {
  if (const HTREEITEM top = ItemOf(m_control.Find(m_topKey))) SelectItem(Handle(), TVGN_FIRSTVISIBLE, top);
}

void TreePresenter::ShowSelection() {
  if (m_changing) return;
  const TreeNode* node = m_control.SelectedItem();
  const HTREEITEM item = ItemOf(node);
  if (item == SelectedInWindow()) return;
  const ScopedValue showing(m_showing, true);
  // A tree that is filled again gets its selection back; a user who had scrolled away from it stays there.
  const bool stays = node != nullptr && node->key == m_selectedKey && !m_selectionInView;
  const HTREEITEM top = NextItem(Handle(), TVGN_FIRSTVISIBLE);
  OpenPathTo(node);
  SelectItem(Handle(), TVGN_CARET, item);
  if (stays)
    SelectItem(Handle(), TVGN_FIRSTVISIBLE, top);
  else if (item != nullptr)
    SendMessageW(Handle(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
}

}  // namespace dayvane::widgets
