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
/// clicks, and the events that the main window handles. Assertions bear the name of the derived class.
class DocumentListView : protected Asserting {
 public:
  /// Columns, counted from 0; but for the last those of both lists.
  static constexpr std::size_t kNameColumn = 0;
  static constexpr std::size_t kTypeColumn = 1;
  static constexpr std::size_t kPathColumn = 2;
  static constexpr std::size_t kModifiedColumn = 3;  ///< of the Daily list

  DocumentListView(Application& application, std::string_view className);
  DocumentListView(const DocumentListView&) = delete;
  DocumentListView& operator=(const DocumentListView&) = delete;
  virtual ~DocumentListView() = default;

  /// The controls, not owned; nullptr for none. Their events are handled from then on.
  void SetListControls(controls::ListView* listView, controls::PictureBox* container);

  controls::ListItem* SelectedDocument() const;  ///< the selected row, or nullptr
  controls::ListStyle View() const;
  void SetView(controls::ListStyle style);
  bool Visible() const;  ///< of the pane
  void SetVisible(bool visible);

  /// 0 sorts by type, 1 by path, both ascending; 2 arranges the icons along the top, 3 leaves them. Others do nothing.
  void ArrangeIcons(int order);

  controls::Signal<controls::ListItem&> DblClick;
  controls::Signal<> ItemClick;
  controls::Signal<double, double> PopupMenu;  ///< x, y in twips, of the pane's parent

 protected:
  /// Fail with kObjectNotSet, after the assertion, when the control is missing.
  controls::ListView& List(const std::string& procedure) const;
  controls::PictureBox& Container(const std::string& procedure) const;
  bool HasList() const { return m_listView != nullptr; }

  /// The widths of the columns and the sort, as the settings keep them: the defaults of a list's subtree are the widths
  /// in the order of the columns, then "Sort Column" and "Sort Order".
  struct Sort {
    std::size_t column = 0;
    controls::SortOrder order = controls::SortOrder::Ascending;
  };
  Sort RestoreColumns(const char* subtree, const std::vector<settings::NamedText>& defaults) const;
  void SaveColumns(const char* subtree, const std::vector<settings::NamedText>& defaults, const Sort& sort) const;

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
  void ListView_DblClick();
  void ListView_KeyUp(int keyCode, int modifiers);
  void ListView_MouseUp(int button, double x, double y);

  std::string m_className;
  controls::ListView* m_listView = nullptr;
  controls::PictureBox* m_container = nullptr;
  std::vector<controls::Connection> m_connections;
};

/// Sorts by a column counted from 1.
void SortByColumn(controls::ListView& list, std::size_t column, controls::SortOrder order);

}  // namespace dayvane
