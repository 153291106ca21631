// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QDir>
#include <vector>

#include "controls/ListView.h"
#include "linux/widgets/Icons.h"

namespace dayvane::widgets {

/// The rows of a list as Qt's views read them, straight from the control: no copy. While the control's rows change
/// the model has none.
class ListModel : public QAbstractTableModel {
 public:
  ListModel(controls::ListView& control, const Icons& icons);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// The first cell of the row; no index for nullptr.
  QModelIndex IndexOf(const controls::ListItem* item) const;

  /// The row's item; nullptr for no index.
  controls::ListItem* ItemAt(const QModelIndex& index) const;

 private:
  void BeginChange();
  void EndChange();
  static QString TextOf(const controls::ListItem& item, int column);
  QString FromHome(const QString& path) const;  ///< with "~" for the user's home folder
  bool IsPath(int column) const;
  QIcon IconOf(const controls::ListItem& item) const;
  Qt::Alignment AlignmentOf(int column) const;

  controls::ListView& m_control;
  const Icons& m_icons;
  QString m_home = QDir::homePath();
  bool m_changing = false;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
