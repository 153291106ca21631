// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "controls/Control.h"
#include "controls/ImageList.h"
#include "controls/UpdateScope.h"

namespace dayvane::controls {

enum class Alignment { Left = 0, Right = 1 };

/// What a column holds, which tells how much room it wants and where a text too long for it is cut.
enum class ColumnKind { Short, Name, Path };

struct ColumnHeader {
  static constexpr double kDesignWidth = 1440;

  std::string text;
  ColumnKind kind = ColumnKind::Short;
  Alignment alignment = Alignment::Left;
  double width = kDesignWidth;  ///< twips
};

/// One row: the text of the first column and those of the others.
struct ListItem {
  std::string key;
  std::string text;
  int icon = 0;  ///< number in both image lists
  std::vector<std::string> subItems;
  std::map<std::size_t, std::string> sortTexts = {};  ///< by column, where the order is not that of the shown texts

  const std::string& Text(std::size_t column) const;  ///< empty for a column that the row does not fill
  const std::string& SortText(std::size_t column) const;
};

enum class SortOrder { Ascending = 0, Descending = 1 };

/// How the rows are drawn; the numbers are the settings'.
enum class ListStyle { LargeIcons = 0, SmallIcons = 1, List = 2, Details = 3 };

/// Automatic arrangement of icons; the numbers are the control's own.
enum class ListArrange { None = 0, Left = 1, Top = 2 };

/// A list of rows found by key and shown in order. At most one row is selected.
class ListView : public Control, public UpdateTarget {
 public:
  std::vector<ColumnHeader>& Columns() { return m_columns; }
  const std::vector<ColumnHeader>& Columns() const { return m_columns; }
  void SetColumns(std::vector<ColumnHeader> columns);
  void SetColumnWidth(std::size_t column, double twips) { Assign(m_columns.at(column).width, twips); }
  bool HasDesignWidths() const;  ///< no column was ever given another width: presenters draw them as wide as they like

  /// What a presenter paints where the rows would be while there are none; empty for nothing.
  const std::string& EmptyText() const { return m_emptyText; }
  void SetEmptyText(const std::string& text) { Assign(m_emptyText, text); }

  std::size_t Count() const { return m_rows.size(); }
  const ListItem& Row(std::size_t row) const { return *m_rows[row]; }  ///< in the order shown

  /// Fails with kKeyNotUnique for a key that is there already. The reference is good until the row is removed; sub
  /// items are filled through it before the list is shown again.
  ListItem& Add(const std::string& key, std::string text, int icon);
  void Clear();

  /// Fail with kElementNotFound.
  ListItem& Item(const std::string& key) const;
  void Remove(const std::string& key);
  ListItem* Find(const std::string& key) const;  ///< nullptr when there is none
  std::size_t RowOf(const ListItem& item) const;

  ListItem* SelectedItem() const { return m_selected; }
  std::string SelectedKey() const { return m_selected == nullptr ? "" : m_selected->key; }
  void SetSelectedItem(ListItem* item);  ///< without raising ItemClick; nullptr selects nothing

  std::size_t SortKey() const { return m_sortKey; }  ///< column counted from 0
  SortOrder Order() const { return m_sortOrder; }
  bool Sorted() const { return m_sorted; }

  /// While sorting is on, the rows stay in the order of the sort texts of one column, without regard to case; equal
  /// rows keep their order. A key beyond the columns sorts by nothing.
  void SetSortKey(std::size_t column);
  void SetSortOrder(SortOrder order);
  void SetSorted(bool sorted);

  ListStyle View() const { return m_style; }
  void SetView(ListStyle style) { Assign(m_style, style); }
  ListArrange Arrange() const { return m_arrange; }
  void SetArrange(ListArrange arrange) { Assign(m_arrange, arrange); }

  const ImageList* LargeImages() const { return m_largeImages; }
  const ImageList* SmallImages() const { return m_smallImages; }
  void SetImages(const ImageList* large, const ImageList* small);  ///< not owned; nullptr detaches

  /// Where a row is drawn, in twips from the list's left and top. Presenters set it when the selection is drawn.
  double SelectedLeft() const { return m_selectedLeft; }
  double SelectedTop() const { return m_selectedTop; }
  void SetSelectedPosition(double left, double top) {
    m_selectedLeft = left;
    m_selectedTop = top;
  }

  /// What the user does: select a row by mouse or keyboard.
  void Click(ListItem& item);

  Signal<std::size_t> ColumnClick;  ///< column counted from 1
  Signal<> DblClick;
  Signal<ListItem&> ItemClick;
  Signal<int, int> KeyUp;               ///< key code, modifiers (1 Shift, 2 Ctrl, 4 Alt)
  Signal<int, double, double> MouseUp;  ///< button (1 left, 2 right), x, y in twips
  Signal<> SelectionChanged;            ///< for presenters

 private:
  void Sort();
  void SortIfOn() {
    if (m_sorted) Sort();
  }

  std::vector<ColumnHeader> m_columns;
  std::string m_emptyText;
  std::vector<std::unique_ptr<ListItem>> m_rows;
  std::unordered_map<std::string, ListItem*> m_items;
  ListItem* m_selected = nullptr;
  std::size_t m_sortKey = 0;
  SortOrder m_sortOrder = SortOrder::Ascending;
  bool m_sorted = false;
  ListStyle m_style = ListStyle::Details;
  ListArrange m_arrange = ListArrange::None;
  const ImageList* m_largeImages = nullptr;
  const ImageList* m_smallImages = nullptr;
  double m_selectedLeft = 0;
  double m_selectedTop = 0;
};

}  // namespace dayvane::controls
