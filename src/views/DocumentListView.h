// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "app/Application.h"
#include "app/Asserting.h"
#include "controls/ListView.h"
#include "controls/SimpleControls.h"
#include "resources/StringTable.h"
#include "settings/SettingsStore.h"

namespace dayvane {

/// What the Daily list and the Favorites list have in common: a list of documents on a pane, its sorting by column
/// clicks, and the events that the main window handles. Assertions carry the name of the derived class.
class DocumentListView : protected Asserting {
 public:
  /// Columns, counted from 0. All but the last are those of both lists.
  static constexpr std::size_t kNameColumn = 0;
  static constexpr std::size_t kTypeColumn = 1;
  static constexpr std::size_t kPathColumn = 2;
  static constexpr std::size_t kModifiedColumn = 3;  ///< of the Daily list

  /// `subtree` of the settings keeps the widths of the columns, by these names, and the sort.
  DocumentListView(Application& application, std::string_view className, const char* subtree,
                   std::initializer_list<const char*> columns);
  DocumentListView(const DocumentListView&) = delete;
  DocumentListView& operator=(const DocumentListView&) = delete;
  virtual ~DocumentListView() = default;

  /// The controls, not owned; nullptr for none. Their events are handled from then on.
  void SetListControls(controls::ListView* listView, controls::PictureBox* container);

  /// The selected row, or nullptr.
  controls::ListItem* SelectedDocument() const { return List("SelectedDocument").SelectedItem(); }
  controls::ListStyle View() const { return List("View").View(); }
  void SetView(controls::ListStyle style) { List("View").SetView(style); }
  bool Visible() const { return Container("Visible").Visible(); }  ///< of the pane
  void SetVisible(bool visible) { Container("Visible").SetVisible(visible); }

  /// 0 sorts by type, 1 by path, both ascending; 2 arranges the icons along the top, 3 leaves them. Others do nothing.
  void ArrangeIcons(int order);

  void CreateRegistryKeys() { settings::CreateSubtree(m_application.desktop.registry, m_subtree, m_defaults); }

  controls::Signal<controls::ListItem&> DblClick;
  controls::Signal<> ItemClick;
  controls::Signal<double, double> PopupMenu;  ///< x, y in twips, of the pane's parent

 protected:
  /// Fail with kObjectNotSet, after the assertion, when the control is missing.
  controls::ListView& List(const std::string& procedure) const {
    return Demand(m_listView, "." + procedure + ": ListView is Nothing");
  }
  controls::PictureBox& Container(const std::string& procedure) const {
    return Demand(m_container, "." + procedure + ": Container is Nothing");
  }
  bool HasList() const { return m_listView != nullptr; }

  /// The settings keep the sort and the widths of the list's columns.
  struct Sort {
    std::size_t column = 0;
    controls::SortOrder order = controls::SortOrder::Ascending;
  };
  Sort RestoreColumns() const;
  void SaveColumns(const Sort& sort) const;

  /// Sizes the pane, in twips.
  void SizePane(int width, int height);

  /// Lays the controls out inside the pane.
  virtual void Container_Resize() = 0;

  Application& m_application;

  // State of the column clicks.
  std::size_t m_sortColumn = 0;  ///< counted from 1
  controls::SortOrder m_sortOrder = controls::SortOrder::Ascending;

 private:
  /// An event's handler with its report block.
  template <class Handler>
  auto Reported(StringId phrase, const char* procedure, Handler handler);

  void ListView_ColumnClick(std::size_t column);
  void ListView_DblClick() {
    if (controls::ListItem* document = SelectedDocument()) DblClick.Raise(*document);
  }
  void ListView_KeyUp(int keyCode, int modifiers);
  void ListView_MouseUp(int button, double x, double y);

  std::string m_className;
  const char* m_subtree;
  std::vector<settings::NamedText> m_defaults;
  controls::ListView* m_listView = nullptr;
  controls::PictureBox* m_container = nullptr;
  std::vector<controls::Connection> m_connections;
};

/// Sorts by a column counted from 1.
void SortByColumn(controls::ListView& list, std::size_t column, controls::SortOrder order);

}  // namespace dayvane
