// SPDX-License-Identifier: MIT
#include "linux/widgets/ListPresenter.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "linux/widgets/IconStyle.h"
#include "linux/widgets/Lengths.h"

namespace dayvane::widgets {

using controls::ListStyle;

ListPresenter::ListPresenter(controls::ListView& control, const Icons& icons, QWidget* parent)
    : QStackedWidget(parent),
      m_control(control),
      m_model(control, icons),
      m_selection(&m_model),
      m_link(control, *this, [this] { Show(); }) {
  // Before the views forget where the old rows were, and after they have taken the new ones.
  connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { RememberScroll(); });
  SetUpViews();
  connect(&m_model, &QAbstractItemModel::modelReset, this, [this] { RestoreScroll(); });
  ListenToUser();
  m_selectionChanged = control.SelectionChanged.ConnectScoped([this] { ShowSelection(); });
  m_link.Show();
  ShowSelection();
}

QAbstractItemView& ListPresenter::CurrentView() {
  if (currentWidget() == &m_details) return m_details;
  return m_icons;
}

void ListPresenter::SetUpViews() {
  m_icons.setItemDelegate(&m_cellDelegate);
  m_details.setItemDelegate(&m_rowDelegate);
  m_details.setUniformRowHeights(true);
  m_details.setRootIsDecorated(false);
  m_details.setAllColumnsShowFocus(true);
  m_details.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  QHeaderView& header = *m_details.header();
  header.setSectionsClickable(true);
  header.setSectionsMovable(false);
  header.setStretchLastSection(false);
  for (QAbstractItemView* view :
       {static_cast<QAbstractItemView*>(&m_icons), static_cast<QAbstractItemView*>(&m_details)}) {
    view->setModel(&m_model);
    view->setSelectionModel(&m_selection);
    addWidget(view);
  }
}

void ListPresenter::ListenToUser() {
  m_icons.SetEvents(EventsOf(m_icons));
  m_details.SetEvents(EventsOf(m_details));
  connect(&m_selection, &QItemSelectionModel::selectionChanged, this, [this] { SelectionMoved(); });
  QHeaderView* header = m_details.header();
  // The second of two quick clicks arrives as a double click only.
  for (const auto clicked : {&QHeaderView::sectionClicked, &QHeaderView::sectionDoubleClicked}) {
    connect(header, clicked, this, [this](int column) {
      m_control.ColumnClick.Raise(static_cast<std::size_t>(column) + 1);
      ShowHeader();  // the header has turned its arrow by itself
    });
  }
  connect(header, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    if (!m_showing) TakeWidths(column, width);
  });
  connect(header, &QHeaderView::geometriesChanged, this, [this] { ShowWidths(); });
}

ViewEvents ListPresenter::EventsOf(QAbstractItemView& view) {
  return {[this](const QModelIndex& index) { Click(index); }, [this] { m_control.DblClick.Raise(); },
          [this, &view](int button, QPoint at) {
            TellSelectedPosition();
            const QPoint place = InContainer(view, at);
            m_control.MouseUp.Raise(button, ToTwips(place.x(), *this), ToTwips(place.y(), *this));
          },
          [this](int key, int modifiers) {
            TellSelectedPosition();
            m_control.KeyUp.Raise(key, modifiers);
          }};
}

void ListPresenter::showEvent(QShowEvent* event) {
  QStackedWidget::showEvent(event);
  ScrollToSelection();
}

void ListPresenter::changeEvent(QEvent* event) {
  QStackedWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  m_fit.Forget();
  ShowWidths();
}

void ListPresenter::SetSpokenName(const QString& name) {
  for (QWidget* view : {static_cast<QWidget*>(&m_icons), static_cast<QWidget*>(&m_details)})
    view->setAccessibleName(name);
}

void ListPresenter::SetSpokenDetail(const QString& detail) {
  m_spokenDetail = detail;
  ShowEmptyText();
}

void ListPresenter::Show() {
  ShowStyle();
  ShowHeader();
  ShowEmptyText();
  CurrentView().viewport()->update();
}

void ListPresenter::ShowStyle() {
  const ListStyle style = m_control.View();
  if (style == m_shownStyle && m_control.Arrange() == m_shownArrange) return;
  m_shownStyle = style;
  m_shownArrange = m_control.Arrange();
  const bool hadFocus = CurrentView().hasFocus();
  const bool icons = style == ListStyle::LargeIcons || style == ListStyle::SmallIcons || style == ListStyle::List;
  if (icons) SetIconStyle(m_icons, m_cellDelegate, style, m_control.Arrange());
  setCurrentWidget(icons ? static_cast<QWidget*>(&m_icons) : &m_details);
  setFocusProxy(&CurrentView());
  if (hadFocus) CurrentView().setFocus();
  ScrollToSelection();
}

void ListPresenter::ShowEmptyText() {
  const QString text = QString::fromStdString(m_control.EmptyText());
  m_icons.SetEmptyText(text);
  m_details.SetEmptyText(text);
  for (QWidget* view : {static_cast<QWidget*>(&m_icons), static_cast<QWidget*>(&m_details)})
    view->setAccessibleDescription(m_control.Count() == 0 && !text.isEmpty() ? (m_spokenDetail + u' ' + text).trimmed()
                                                                             : m_spokenDetail);
}

void ListPresenter::ShowWidths() {
  const QScopedValueRollback showing(m_showing, true);
  QHeaderView& header = *m_details.header();
  const int count = std::min(header.count(), m_model.columnCount());
  const std::vector<int> fitting = m_control.HasDesignWidths() ? m_fit.Widths() : std::vector<int>();
  for (int column = 0; column < count; ++column) {
    const auto index = static_cast<std::size_t>(column);
    header.resizeSection(column, fitting.empty() ? ToPixels(m_control.Columns()[index].width, *this) : fitting[index]);
  }
}

void ListPresenter::TakeWidths(int column, int width) {
  std::vector<int> shown;
  const bool all = m_control.HasDesignWidths();
  for (int other = 0; other < m_model.columnCount(); ++other) shown.push_back(m_details.header()->sectionSize(other));
  for (int other = 0; other < m_model.columnCount(); ++other)
    if (all && other != column)
      m_control.SetColumnWidth(static_cast<std::size_t>(other), ToTwips(shown[static_cast<std::size_t>(other)], *this));
  m_control.SetColumnWidth(static_cast<std::size_t>(column), ToTwips(width, *this));
}

void ListPresenter::ShowHeader() {
  ShowWidths();
  const QScopedValueRollback showing(m_showing, true);
  QHeaderView& header = *m_details.header();
  const bool ascending = m_control.Order() == controls::SortOrder::Ascending;
  header.setSortIndicatorShown(m_control.Sorted());
  const int sortColumn = m_control.SortKey() < m_control.Columns().size() ? static_cast<int>(m_control.SortKey()) : -1;
  header.setSortIndicator(sortColumn, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void ListPresenter::ShowSelection() {
  const controls::ListItem* item = m_control.SelectedItem();
  const QModelIndex index = m_model.IndexOf(item);
  if (index == SelectedIndex()) return;
  const QScopedValueRollback showing(m_showing, true);
  CurrentView().setAutoScroll(false);
  m_selection.setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  CurrentView().setAutoScroll(true);
  // A list that is filled again gets its selection back; a user who had scrolled away from it stays there.
  if (item != nullptr && !m_scroll.ScrolledAwayFrom(item->key)) ScrollToSelection();
}

void ListPresenter::ScrollToSelection() {
  const QModelIndex index = m_model.IndexOf(m_control.SelectedItem());
  if (!index.isValid() || !isVisible()) return;
  CurrentView().scrollTo(index);
}

void ListPresenter::LayOut() {
  if (currentWidget() == &m_details)
    m_details.LayOut();
  else
    m_icons.LayOut();
}

void ListPresenter::RememberScroll() {
  if (m_control.Count() == 0) return;
  m_scroll.Remember(CurrentView(), m_control.Row(0).key, m_control.SelectedKey(),
                    m_model.IndexOf(m_control.SelectedItem()));
}

void ListPresenter::RestoreScroll() {
  m_fit.Forget();
  ShowHeader();
  ShowEmptyText();
  if (m_control.Count() == 0) return;
  LayOut();
  m_scroll.Restore(CurrentView(), m_control.Find(m_scroll.KnownKey()) != nullptr);
  ShowSelection();
}

void ListPresenter::SelectionMoved() {
  if (m_showing || m_icons.IsPressing() || m_details.IsPressing()) return;
  if (controls::IsAtWork()) return m_deferred.AfterWork([this] { SelectionMoved(); });
  if (const QModelIndex index = SelectedIndex(); index.isValid())
    Click(index);
  else
    m_control.SetSelectedItem(nullptr);
}

QModelIndex ListPresenter::SelectedIndex() const {
  const QModelIndexList rows = m_selection.selectedRows();
  return rows.isEmpty() ? QModelIndex() : rows.first();
}

void ListPresenter::Click(const QModelIndex& index) {
  m_scroll.ForgetSelection();
  if (controls::ListItem* item = m_model.ItemAt(index)) m_control.Click(*item);
}

void ListPresenter::TellSelectedPosition() {
  const QModelIndex index = m_model.IndexOf(m_control.SelectedItem());
  if (!index.isValid()) return;
  const QPoint place = InContainer(CurrentView(), CurrentView().visualRect(index).topLeft());
  m_control.SetSelectedPosition(ToTwips(place.x(), *this), ToTwips(place.y(), *this));
}

QPoint ListPresenter::InContainer(const QAbstractItemView& view, QPoint at) const {
  return view.viewport()->mapTo(parentWidget() != nullptr ? parentWidget() : this, at);
}

}  // namespace dayvane::widgets
