// SPDX-License-Identifier: MIT
#include "linux/widgets/ListModel.h"

#include "linux/files/NativePath.h"
#include "linux/widgets/RowDelegate.h"

namespace dayvane::widgets {

ListModel::ListModel(controls::ListView& control, const Icons& icons) : m_control(control), m_icons(icons) {
  m_connections.push_back(control.ContentsWillChange.ConnectScoped([this] { BeginChange(); }));
  m_connections.push_back(control.ContentsChanged.ConnectScoped([this] { EndChange(); }));
}

void ListModel::BeginChange() {
  beginResetModel();
  m_changing = true;
}

void ListModel::EndChange() {
  m_changing = false;
  endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || m_changing ? 0 : static_cast<int>(m_control.Count());
}

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_control.Columns().size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (m_changing || !checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const controls::ListItem& item = m_control.Row(static_cast<std::size_t>(index.row()));
  switch (role) {
    case Qt::DisplayRole:
      return IsPath(index.column()) ? FromHome(TextOf(item, index.column())) : TextOf(item, index.column());
    case kWholeTextRole:
      return IsPath(index.column()) ? QVariant(TextOf(item, index.column())) : QVariant();
    case Qt::DecorationRole:
      return index.column() == 0 ? QVariant(IconOf(item)) : QVariant();
    case Qt::TextAlignmentRole:
      // The icon views centre a name below its icon by themselves.
      return index.column() == 0 ? QVariant() : QVariant(AlignmentOf(index.column()));
    default:
      return {};
  }
}

QString ListModel::TextOf(const controls::ListItem& item, int column) {
  return QString::fromStdString(files::ForReading(item.Text(static_cast<std::size_t>(column))));
}

QString ListModel::FromHome(const QString& path) const {
  // The favorites show their folders in lower case.
  if (m_home.size() < 2 || !path.startsWith(m_home, Qt::CaseInsensitive)) return path;
  if (path.size() > m_home.size() && path[m_home.size()] != u'/') return path;
  return u'~' + path.mid(m_home.size());
}

bool ListModel::IsPath(int column) const {
  return m_control.Columns()[static_cast<std::size_t>(column)].kind == controls::ColumnKind::Path;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  if (role == Qt::TextAlignmentRole) return QVariant(AlignmentOf(section));
  if (role != Qt::DisplayRole) return {};
  return QString::fromStdString(m_control.Columns()[static_cast<std::size_t>(section)].text);
}

QModelIndex ListModel::IndexOf(const controls::ListItem* item) const {
  if (item == nullptr || m_changing) return {};
  return index(static_cast<int>(m_control.RowOf(*item)), 0);
}

controls::ListItem* ListModel::ItemAt(const QModelIndex& index) const {
  if (m_changing || !checkIndex(index, CheckIndexOption::IndexIsValid)) return nullptr;
  return m_control.Find(m_control.Row(static_cast<std::size_t>(index.row())).key);
}

QIcon ListModel::IconOf(const controls::ListItem& item) const {
  const bool large = m_control.View() == controls::ListStyle::LargeIcons;
  return m_icons.Of(large ? m_control.LargeImages() : m_control.SmallImages(), item.icon);
}

Qt::Alignment ListModel::AlignmentOf(int column) const {
  const bool right = m_control.Columns()[static_cast<std::size_t>(column)].alignment == controls::Alignment::Right;
  return (right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

}  // namespace dayvane::widgets
