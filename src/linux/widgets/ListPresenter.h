// SPDX-License-Identifier: MIT
#pragma once

#include <QItemSelectionModel>
#include <QListView>
#include <QStackedWidget>
#include <QTreeView>
#include <optional>

#include "controls/Deferred.h"
#include "controls/ListView.h"
#include "linux/widgets/ClassicView.h"
#include "linux/widgets/ColumnFit.h"
#include "linux/widgets/ControlLink.h"
#include "linux/widgets/DetailsTable.h"
#include "linux/widgets/ListModel.h"
#include "linux/widgets/RowDelegate.h"
#include "linux/widgets/ScrollMemory.h"

namespace dayvane::widgets {

/// Shows a list in its four styles: three in one icon view, the details in a table; both share model and selection.
/// Positions that it tells the control are those in the list's container, where a menu is popped up.
class ListPresenter : public QStackedWidget {
 public:
  ListPresenter(controls::ListView& control, const Icons& icons, QWidget* parent = nullptr);

  // For screen readers.
  void SetSpokenName(const QString& name);
  void SetSpokenDetail(const QString& detail);

  QListView& IconView() { return m_icons; }
  QTreeView& DetailsView() { return m_details; }
  QAbstractItemView& CurrentView();  ///< the view of the style shown

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void SetUpViews();
  void ListenToUser();
  ViewEvents EventsOf(QAbstractItemView& view);

  void Show();
  void ShowStyle();
  void ShowHeader();
  void ShowWidths();
  void ShowEmptyText();
  void TakeWidths(int column, int width);  ///< the user's: from now on every column has a width of its own
  void ShowSelection();
  void ScrollToSelection();
  void LayOut();  ///< rows that are not laid out cannot be scrolled
  void RememberScroll();
  void RestoreScroll();

  void SelectionMoved();
  void Click(const QModelIndex& index);
  QModelIndex SelectedIndex() const;  ///< in the widgets
  void TellSelectedPosition();
  QPoint InContainer(const QAbstractItemView& view, QPoint at) const;

  controls::ListView& m_control;
  ListModel m_model;
  QItemSelectionModel m_selection;
  RowDelegate m_rowDelegate;
  RowDelegate m_cellDelegate;
  ClassicView<QListView> m_icons;
  DetailsTable m_details;
  ColumnFit m_fit{m_control, m_details};
  ScrollMemory m_scroll;
  std::optional<controls::ListStyle> m_shownStyle;
  std::optional<controls::ListArrange> m_shownArrange;
  QString m_spokenDetail;
  controls::Deferred m_deferred;
  bool m_showing = false;  ///< what changes in the widgets is not the user's doing
  ControlLink m_link;
  controls::Connection m_selectionChanged;
};

}  // namespace dayvane::widgets
