// SPDX-License-Identifier: MIT
#include "linux/widgets/ColumnFit.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QTreeView>
#include <algorithm>
#include <numeric>
#include <string_view>
#include <unordered_set>

#include "controls/ListView.h"

namespace dayvane::widgets {

namespace {

using controls::ColumnKind;

constexpr int kMostMeasured = 200;  ///< texts of a column: measuring all of 50,000 rows would take half a second
constexpr int kLettersOfName = 16;  ///< at the least, before a table that is too narrow scrolls
constexpr int kLettersOfPath = 10;
constexpr int kRoomBesideText = 8;  ///< logical pixels
constexpr int kStep = 16;      ///< logical pixels: what is wanted comes in steps, so that few columns move at a poll
constexpr int kNameShare = 3;  ///< of five parts, where both want more than there is
constexpr int kShares = 5;

struct Elastic {
  int wanted;
  int least;
};

/// The room of the name; the rest is the path's.
int RoomOfName(const Elastic& name, const Elastic& path, int room) {
  if (name.wanted + path.wanted <= room) return name.wanted + (room - name.wanted - path.wanted) / 2;
  const int share = room * kNameShare / kShares;
  if (name.wanted <= share) return name.wanted;
  if (path.wanted <= room - share) return room - path.wanted;
  return share;
}

int InSteps(int wanted) {
  return (wanted + kStep - 1) / kStep * kStep;
}

int ColumnOf(const controls::ListView& list, ColumnKind kind) {
  const auto& columns = list.Columns();
  const auto found = std::ranges::find(columns, kind, &controls::ColumnHeader::kind);
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

}  // namespace

std::vector<int> ColumnFit::Widths() {
  if (m_wanted.empty()) Measure();
  std::vector<int> widths = m_wanted;
  const int nameColumn = ColumnOf(m_list, ColumnKind::Name);
  const int pathColumn = ColumnOf(m_list, ColumnKind::Path);
  if (nameColumn < 0 || pathColumn < 0) return widths;
  int& nameWidth = widths[static_cast<std::size_t>(nameColumn)];
  int& pathWidth = widths[static_cast<std::size_t>(pathColumn)];
  const int letter = QFontMetrics(m_view.font()).averageCharWidth();
  const Elastic name{nameWidth, kLettersOfName * letter};
  const Elastic path{pathWidth, kLettersOfPath * letter};
  const int others = std::accumulate(widths.begin(), widths.end(), 0) - nameWidth - pathWidth;
  const int room = m_view.viewport()->width() - others;
  nameWidth = std::max(RoomOfName(name, path, room), name.least);
  pathWidth = std::max(room - nameWidth, path.least);
  return widths;
}

void ColumnFit::Measure() {
  for (int column = 0; column < static_cast<int>(m_list.Columns().size()); ++column)
    m_wanted.push_back(InSteps(std::max(m_view.header()->sectionSizeHint(column), WantedByRows(column))));
}

int ColumnFit::WantedByRows(int column) const {
  const QAbstractItemModel& model = *m_view.model();
  const QFontMetrics metrics(m_view.font());
  std::unordered_set<std::string_view> measured;
  std::size_t longest = 0;
  int widest = -1;
  QModelIndex widestCell;
  for (int row = 0; row < model.rowCount(); ++row) {
    const std::string& text = m_list.Row(static_cast<std::size_t>(row)).Text(static_cast<std::size_t>(column));
    // What is much shorter than another text is not wider.
    if (text.size() < longest / 2 || !measured.insert(text).second) continue;
    if (measured.size() > kMostMeasured) break;
    longest = std::max(longest, text.size());
    const QModelIndex cell = model.index(row, column);
    const int width = metrics.horizontalAdvance(cell.data().toString());
    if (width <= widest) continue;
    widest = width;
    widestCell = cell;
  }
  return widestCell.isValid() ? m_view.sizeHintForIndex(widestCell).width() + kRoomBesideText : 0;
}

}  // namespace dayvane::widgets
