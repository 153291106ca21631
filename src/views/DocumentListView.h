#pragma once

#include <string>
#include <vector>

#include "app/Application.h"
#include "controls/ListView.h"
#include "controls/SimpleControls.h"
#include "resources/StringTable.h"

namespace dayvane {

/// What the Daily list and the Favorites list have in common: a list of documents on a pane, its sorting by column
/// clicks, and the events that the main window handles. Assertions bear the name of the derived class.
class DocumentListView {
 public:
  /// Columns, counted from 0; but for the last those of both lists.
  static constexpr std::size_t kNameColumn = 0;
  static constexpr std::size_t kTypeColumn = 1;
  static constexpr std::size_t kPathColumn = 2;
  static constexpr std::size_t kModifiedColumn = 3;  ///< of the Daily list

  DocumentListView(Application& application, std::string className);
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
  void Assert(bool condition, std::string_view message) const;
  bool HasList() const { return m_listView != nullptr; }

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
