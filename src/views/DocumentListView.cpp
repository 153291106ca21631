// SPDX-License-Identifier: MIT
#include "views/DocumentListView.h"

#include <utility>

#include "app/ReportErrors.h"
#include "base/Text.h"
#include "controls/Keys.h"

namespace dayvane {

using controls::ListArrange;
using controls::ListStyle;
using controls::SortOrder;

DocumentListView::DocumentListView(Application& application, std::string_view className, const char* subtree,
                                   std::initializer_list<const char*> columns)
    : Asserting(application, className), m_application(application), m_className(className), m_subtree(subtree) {
  for (const char* column : columns) m_defaults.push_back({std::string(column) + " Width", "1440"});
  m_defaults.push_back({"Sort Column", "1"});
  m_defaults.push_back({"Sort Order", "0"});
}

template <class Handler>
auto DocumentListView::Reported(StringId phrase, const char* procedure, Handler handler) {
  return [this, phrase, procedure, handler](auto&&... arguments) {
    ReportErrors(m_application, phrase, m_className, procedure, [&] { handler(arguments...); });
  };
}

void DocumentListView::SetListControls(controls::ListView* listView, controls::PictureBox* container) {
  m_connections.clear();
  m_listView = listView;
  m_container = container;
  const auto keep = [this](controls::Connection connection) { m_connections.push_back(std::move(connection)); };
  if (container != nullptr)
    keep(container->Resize.ConnectScoped(Reported(kResizing, "Container_Resize", [this] { Container_Resize(); })));
  if (listView == nullptr) return;
  keep(listView->ColumnClick.ConnectScoped(Reported(kChangingSortOrder, "ListView_ColumnClick",
                                                    [this](std::size_t column) { ListView_ColumnClick(column); })));
  keep(listView->DblClick.ConnectScoped(
      Reported(kOpeningDocument, "ListView_DblClick", [this] { ListView_DblClick(); })));
  keep(listView->ItemClick.ConnectScoped(
      Reported(kProcessingSelection, "ListView_ItemClick", [this](controls::ListItem&) { ItemClick.Raise(); })));
  keep(listView->KeyUp.ConnectScoped(Reported(kProcessingSelection, "ListView_KeyUp",
                                              [this](int key, int modifiers) { ListView_KeyUp(key, modifiers); })));
  keep(listView->MouseUp.ConnectScoped(
      Reported(kDisplayingContextMenu, "ListView_MouseUp",
               [this](int button, double x, double y) { ListView_MouseUp(button, x, y); })));
}

void DocumentListView::ArrangeIcons(int order) {
  controls::ListView& list = List("ArrangeIcons");
  switch (order) {
    case 0:
      return SortByColumn(list, kTypeColumn + 1, SortOrder::Ascending);
    case 1:
      return SortByColumn(list, kPathColumn + 1, SortOrder::Ascending);
    case 2:
      return list.SetArrange(ListArrange::Top);
    case 3:
      return list.SetArrange(ListArrange::None);
    default:
      return;
  }
}

void DocumentListView::ListView_ColumnClick(std::size_t column) {
  // Another column is sorted in the order last used, deliberately not set back to ascending.
  if (column == m_sortColumn)
    m_sortOrder = m_sortOrder == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending;
  m_sortColumn = column;
  SortByColumn(List("ListView_ColumnClick"), m_sortColumn, m_sortOrder);
}

void DocumentListView::ListView_KeyUp(int keyCode, int modifiers) {
  const controls::PictureBox& container = Container("ListView_KeyUp");
  controls::ListItem* document = SelectedDocument();
  if (document == nullptr) return;
  if (keyCode == controls::kKeyReturn) return DblClick.Raise(*document);
  // The Alt bit, not Shift, is what has always been tested.
  if (keyCode == controls::kKeyF10 && (modifiers & controls::kAltMask) != 0)
    PopupMenu.Raise(container.Left() + m_listView->SelectedLeft(), container.Top() + m_listView->SelectedTop());
}

void DocumentListView::ListView_MouseUp(int button, double x, double y) {
  const controls::PictureBox& container = Container("ListView_MouseUp");
  if (button == controls::kRightButton && SelectedDocument() != nullptr)
    PopupMenu.Raise(container.Left() + x, container.Top() + y);
}

void SortByColumn(controls::ListView& list, std::size_t column, SortOrder order) {
  const controls::UpdateScope update(list);
  list.SetSortKey(column - 1);
  list.SetSortOrder(order);
  list.SetSorted(true);
}

void DocumentListView::SizePane(int width, int height) {
  controls::PictureBox& container = Container("SetSize");
  container.Move(container.Left(), container.Top(), width, height);
}

DocumentListView::Sort DocumentListView::RestoreColumns() const {
  controls::ListView& list = List("RestoreSettings");
  const settings::Subtree stored(m_application.desktop.registry, m_subtree, m_defaults);
  const std::size_t columns = list.Columns().size();
  for (std::size_t column = 0; column < columns; ++column) list.SetColumnWidth(column, stored.Number(column));
  return {static_cast<std::size_t>(stored.Number(columns)),
          stored.Number(columns + 1) == 1 ? controls::SortOrder::Descending : controls::SortOrder::Ascending};
}

void DocumentListView::SaveColumns(const Sort& sort) const {
  const controls::ListView& list = List("SaveSettings");
  const auto key = settings::OpenSubtree(m_application.desktop.registry, m_subtree);
  for (std::size_t column = 0; column < list.Columns().size(); ++column)
    key->SetValue(m_defaults[column].name, text::NumberText(list.Columns()[column].width));
  // Through the stored type, so that the number of a column that does not exist goes back as it came.
  key->SetValue("Sort Column", std::to_string(static_cast<std::int16_t>(sort.column)));
  key->SetValue("Sort Order", std::to_string(static_cast<int>(sort.order)));
}

}  // namespace dayvane
