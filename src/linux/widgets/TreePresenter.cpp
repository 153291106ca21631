// SPDX-License-Identifier: MIT
#include "linux/widgets/TreePresenter.h"

#include <QScopedValueRollback>
#include <QScrollBar>

#include "controls/Keys.h"
#include "linux/widgets/Lengths.h"

namespace dayvane::widgets {

TreePresenter::TreePresenter(controls::TreeView& control, const Icons& icons, QWidget* parent)
    : m_control(control),
      m_model(control, icons),
      m_selection(&m_model),
      m_link(control, *this, [this] { viewport()->update(); }) {
  setParent(parent);
  // Before the view forgets where the old nodes were, and after it has taken the new ones.
  connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { RememberScroll(); });
  SetUpView();
  connect(&m_model, &QAbstractItemModel::modelReset, this, [this] { RestoreContents(); });
  ListenToUser();
  m_selectionChanged = control.SelectionChanged.ConnectScoped([this] { ShowSelection(); });
  m_link.Show();
  RestoreContents();
}

TreePresenter::~TreePresenter() {
  // The model goes before the view that is this object's base.
  setModel(nullptr);
}

void TreePresenter::SetUpView() {
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setItemDelegate(&m_rowDelegate);
  setModel(&m_model);
  setSelectionModel(&m_selection);
}

void TreePresenter::ListenToUser() {
  SetEvents({[this](const QModelIndex& index) { Click(index); }, nullptr,
             [this](int button, QPoint at) { RaiseMouseUp(button, at); },
             [this](int key, int modifiers) {
               // The node's menu without a mouse.
               if (key == controls::kKeyF10 && modifiers == controls::kAltMask)
                 RaiseMouseUp(controls::kRightButton, visualRect(currentIndex()).center());
             }});
  connect(&m_selection, &QItemSelectionModel::selectionChanged, this, [this] { SelectionMoved(); });
  connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
    if (const controls::TreeNode* node = m_model.NodeAt(index)) m_open.insert(node->key);
  });
  connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
    if (const controls::TreeNode* node = m_model.NodeAt(index)) m_open.erase(node->key);
  });
}

void TreePresenter::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  ScrollToSelection();
}

void TreePresenter::ShowSelection() {
  const controls::TreeNode* node = m_control.SelectedItem();
  const QModelIndex index = m_model.IndexOf(node);
  const QModelIndexList shown = m_selection.selectedIndexes();
  if (index == (shown.isEmpty() ? QModelIndex() : shown.first())) return;
  const QScopedValueRollback showing(m_showing, true);
  OpenPathTo(index);
  setAutoScroll(false);
  m_selection.setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
  setAutoScroll(true);
  if (node != nullptr && !m_scroll.ScrolledAwayFrom(node->key)) ScrollToSelection();
}

void TreePresenter::ScrollToSelection() {
  const QModelIndex index = m_model.IndexOf(m_control.SelectedItem());
  if (index.isValid() && isVisible()) scrollTo(index);
}

void TreePresenter::RememberScroll() {
  if (m_control.Roots().empty()) return;
  m_scroll.Remember(*this, m_control.Roots().front()->key, m_control.SelectedKey(),
                    m_model.IndexOf(m_control.SelectedItem()));
}

void TreePresenter::RestoreContents() {
  if (m_control.Roots().empty()) return;
  OpenRoots();
  OpenAgain();
  LayOut();
  m_scroll.Restore(*this, m_control.Find(m_scroll.KnownKey()) != nullptr);
  ShowSelection();
}

void TreePresenter::OpenRoots() {
  for (const auto& root : m_control.Roots())
    if (m_knownRoots.insert(root->key).second) m_open.insert(root->key);
}

void TreePresenter::OpenAgain() {
  std::erase_if(m_open, [this](const std::string& key) { return m_control.Find(key) == nullptr; });
  for (const std::string& key : std::set(m_open)) expand(m_model.IndexOf(m_control.Find(key)));
}

void TreePresenter::OpenPathTo(const QModelIndex& index) {
  for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent()) expand(parent);
}

void TreePresenter::SelectionMoved() {
  if (m_showing || IsPressing()) return;
  if (controls::IsAtWork()) return m_deferred.AfterWork([this] { SelectionMoved(); });
  const QModelIndexList selected = m_selection.selectedIndexes();
  if (!selected.isEmpty()) Click(selected.first());
}

void TreePresenter::Click(const QModelIndex& index) {
  m_scroll.ForgetSelection();
  if (controls::TreeNode* node = m_model.NodeAt(index)) m_control.Click(*node);
}

void TreePresenter::RaiseMouseUp(int button, QPoint at) {
  const QPoint place = viewport()->mapTo(this, at);
  m_control.MouseUp.Raise(button, ToTwips(place.x(), *this), ToTwips(place.y(), *this));
}

}  // namespace dayvane::widgets
