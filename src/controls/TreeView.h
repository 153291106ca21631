// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "controls/Control.h"
#include "controls/ImageList.h"
#include "controls/UpdateScope.h"

namespace dayvane::controls {

/// A node of a tree. Owned by its parent, stays at its address until the tree is cleared.
struct TreeNode {
  std::string key;
  std::string text;
  int image = 0;                                    ///< number in the tree's image list
  std::optional<std::chrono::local_days> day = {};  ///< that the node stands for
  TreeNode* parent = nullptr;
  std::size_t row = 0;  ///< place among its parent's children
  std::vector<std::unique_ptr<TreeNode>> children;
};

/// A tree of nodes found by key. At most one is selected.
class TreeView : public Control, public UpdateTarget {
 public:
  TreeNode& AddRoot(const std::string& key, std::string text, int image) {
    return Insert(m_roots, nullptr, key, std::move(text), image);
  }

  /// Fails with kElementNotFound for an unknown parent and kKeyNotUnique for a key that is there already.
  TreeNode& AddChild(const std::string& parentKey, const std::string& key, std::string text, int image);

  void Clear();
  const std::vector<std::unique_ptr<TreeNode>>& Roots() const { return m_roots; }
  std::size_t Count() const { return m_nodes.size(); }

  /// Fails with kElementNotFound.
  TreeNode& Node(const std::string& key) const;
  TreeNode* Find(const std::string& key) const;  ///< nullptr when there is none

  TreeNode* SelectedItem() const { return m_selected; }
  std::string SelectedKey() const { return m_selected == nullptr ? "" : m_selected->key; }

  /// Selects without raising NodeClick; presenters bring the node into view. nullptr selects nothing.
  void SetSelectedItem(TreeNode* node);

  const ImageList* Images() const { return m_images; }
  void SetImages(const ImageList* images) { Assign(m_images, images); }  ///< not owned

  /// What the user's click on a node, or move to it by the keyboard, does.
  void Click(TreeNode& node);

  Signal<TreeNode&> NodeClick;
  Signal<int, double, double> MouseUp;  ///< button (1 left, 2 right), x, y in twips inside the tree
  Signal<> SelectionChanged;            ///< for presenters

 private:
  TreeNode& Insert(std::vector<std::unique_ptr<TreeNode>>& siblings, TreeNode* parent, const std::string& key,
                   std::string text, int image);

  std::vector<std::unique_ptr<TreeNode>> m_roots;
  std::unordered_map<std::string, TreeNode*> m_nodes;
  TreeNode* m_selected = nullptr;
  const ImageList* m_images = nullptr;
};

}  // namespace dayvane::controls
