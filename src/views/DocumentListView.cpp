#include "views/DocumentListView.h"

#include <utility>

#include "app/ReportErrors.h"
#include "base/Required.h"
#include "controls/Keys.h"

namespace dayvane {

using controls::ListArrange;
using controls::ListStyle;
using controls::SortOrder;

namespace {

// Key codes and modifier bits of the classic key events.

}  // namespace

DocumentListView::DocumentListView(Application& application, std::string className)
    : m_application(application), m_className(std::move(className)) {}

void DocumentListView::Assert(bool condition, std::string_view message) const {
  if (!condition) m_application.asserts.Assert(false, m_className + std::string(message));
}

controls::ListView& DocumentListView::List(const std::string& procedure) const {
  Assert(m_listView != nullptr, "." + procedure + ": ListView is Nothing");
  return Required(m_listView);
}

controls::PictureBox& DocumentListView::Container(const std::string& procedure) const {
  Assert(m_container != nullptr, "." + procedure + ": Container is Nothing");
  return Required(m_container);
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

controls::ListItem* DocumentListView::SelectedDocument() const {
  return List("SelectedDocument").SelectedItem();
}
ListStyle DocumentListView::View() const {
  return List("View").View();
}
void DocumentListView::SetView(ListStyle style) {
  List("View").SetView(style);
}
bool DocumentListView::Visible() const {
  return Container("Visible").Visible();
}
void DocumentListView::SetVisible(bool visible) {
  Container("Visible").SetVisible(visible);
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
  ReportErrors(m_application, kChangingSortOrder, m_className, "ListView_ColumnClick", [&] {
    // Another column is sorted in the order last used, deliberately not set back to ascending.
    if (column == m_sortColumn)
      m_sortOrder = m_sortOrder == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending;
    m_sortColumn = column;
    SortByColumn(List("ListView_ColumnClick"), m_sortColumn, m_sortOrder);
  });
}

void DocumentListView::ListView_DblClick() {
  if (controls::ListItem* document = SelectedDocument()) DblClick.Raise(*document);
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

}  // namespace dayvane
