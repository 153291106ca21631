// SPDX-License-Identifier: MIT
#include "controls/TreeView.h"

#include <utility>

#include "base/Error.h"

namespace dayvane::controls {

TreeNode& TreeView::AddChild(const std::string& parentKey, const std::string& key, std::string text, int image) {
  TreeNode& parent = Node(parentKey);
  return Insert(parent.children, &parent, key, std::move(text), image);
}

TreeNode& TreeView::Insert(std::vector<std::unique_ptr<TreeNode>>& siblings, TreeNode* parent, const std::string& key,
                           std::string text, int image) {
  const UpdateScope update(*this);
  auto node = std::make_unique<TreeNode>(TreeNode{.key = key,
                                                  .text = std::move(text),
                                                  .image = image,
                                                  .day = {},
                                                  .parent = parent,
                                                  .row = siblings.size(),
                                                  .children = {}});
  if (!m_nodes.emplace(key, node.get()).second) throw Error(kKeyNotUnique, "Key is not unique in the tree: " + key);
  siblings.push_back(std::move(node));
  return *siblings.back();
}

void TreeView::Clear() {
  const UpdateScope update(*this);
  m_selected = nullptr;
  m_nodes.clear();
  m_roots.clear();
}

TreeNode& TreeView::Node(const std::string& key) const {
  if (TreeNode* node = Find(key)) return *node;
  throw Error(kElementNotFound, "Element not found in the tree: " + key);
}

TreeNode* TreeView::Find(const std::string& key) const {
  const auto found = m_nodes.find(key);
  return found == m_nodes.end() ? nullptr : found->second;
}

void TreeView::SetSelectedItem(TreeNode* node) {
  if (m_selected == node) return;
  m_selected = node;
  SelectionChanged.Raise();
}

void TreeView::Click(TreeNode& node) {
  SetSelectedItem(&node);
  NodeClick.Raise(node);
}

}  // namespace dayvane::controls
