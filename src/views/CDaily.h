// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/TreeView.h"
#include "views/DocumentListView.h"

namespace dayvane {

/// The Daily view's tree and list on their pane: the sizes of both, the list's settings and the events that the main
/// window handles.
class CDaily : public DocumentListView {
 public:
  static constexpr const char* ClassName = "CDaily";

  explicit CDaily(Application& application)
      : DocumentListView(application, ClassName, "Daily", {"Name", "Type", "Path", "Modified"}) {}

  /// The controls, not owned. Their events are handled from then on.
  void SetControls(controls::TreeView* treeView, controls::ListView* listView, controls::PictureBox* container);

  /// The tree's selected node, or nullptr.
  controls::TreeNode* SelectedDay() const { return Tree("SelectedDay").SelectedItem(); }

  /// Sizes the pane, in twips; tree and list follow, each reaching 30 twips past its inner edge.
  void SetSize(int width, int height) { SizePane(width, height); }

  /// Show the folder of the selected document, with and without the folder tree. With none selected: a beep.
  void Explore() const { ShowFolder(List("Explore"), "/n,/e,/root,"); }
  void OpenFolder() const { ShowFolder(List("OpenFolder"), "/n,"); }

  /// Removes a row. Fails with kElementNotFound when the list has no row with that key.
  void RemoveDocument(const std::string& key) { List("RemoveDocument").Remove(key); }

  void RestoreSettings();
  void SaveSettings() const;

  controls::Signal<controls::TreeNode&> TreeViewNodeClick;

 private:
  void Container_Resize() override;
  void ShowFolder(const controls::ListView& list, const std::string& explorerArguments) const;
  controls::TreeView& Tree(const std::string& procedure) const {
    return Demand(m_treeView, "." + procedure + ": TreeView is Nothing");
  }

  controls::TreeView* m_treeView = nullptr;
  controls::Connection m_nodeClick;
};

}  // namespace dayvane
