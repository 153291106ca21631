// SPDX-License-Identifier: MIT
#include "windows/widgets/ColumnFit.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>
#include <unordered_set>

#include "controls/ListView.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

using controls::ColumnKind;

constexpr int kMostMeasured = 200;  ///< texts of a column: measuring all of 50,000 rows would take half a second
constexpr int kLettersOfName = 16;  ///< at the least, before a table that is too narrow scrolls
constexpr int kLettersOfPath = 10;

// At 96 dots per inch.
constexpr int kRoomBesideWords = 20;
constexpr int kRoomOfIcon = 20;
constexpr int kRoomOfArrow = 16;
constexpr int kStep = 16;  ///< what is wanted comes in steps, so that few columns move at a poll

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

int InSteps(int wanted, int step) {
  return (wanted + step - 1) / step * step;
}

std::size_t ColumnOf(const controls::ListView& list, ColumnKind kind) {
  return static_cast<std::size_t>(std::ranges::find(list.Columns(), kind, &controls::ColumnHeader::kind) -
                                  list.Columns().begin());
}

int WidthOf(const std::string& text, HDC device) {
  const std::wstring wide = ShownText(text);
  SIZE size{};
  GetTextExtentPoint32W(device, wide.c_str(), static_cast<int>(wide.size()), &size);
  return size.cx;
}

}  // namespace

std::vector<int> ColumnFit::Widths(const Look& look, int width) {
  if (m_wanted.empty()) Measure(look);
  std::vector<int> widths = m_wanted;
  const std::size_t nameColumn = ColumnOf(m_list, ColumnKind::Name);
  const std::size_t pathColumn = ColumnOf(m_list, ColumnKind::Path);
  if (nameColumn >= widths.size() || pathColumn >= widths.size()) return widths;
  int& nameWidth = widths[nameColumn];
  int& pathWidth = widths[pathColumn];
  const int letter = TextSize(look.TextFont(), L"x").cx;
  const Elastic name{nameWidth, kLettersOfName * letter};
  const Elastic path{pathWidth, kLettersOfPath * letter};
  const int room = width - (std::accumulate(widths.begin(), widths.end(), 0) - nameWidth - pathWidth);
  nameWidth = std::max(RoomOfName(name, path, room), name.least);
  pathWidth = std::max(room - nameWidth, path.least);
  return widths;
}

void ColumnFit::Measure(const Look& look) {
  const MeasuringDevice device(look.TextFont());
  for (std::size_t column = 0; column < m_list.Columns().size(); ++column) {
    const int heading = WidthOf(m_list.Columns()[column].text, device.Get()) + look.Pixels(kRoomOfArrow);
    const int rows = WantedByRows(column, device.Get()) + (column == 0 ? look.Pixels(kRoomOfIcon) : 0);
    m_wanted.push_back(InSteps(std::max(heading, rows) + look.Pixels(kRoomBesideWords), look.Pixels(kStep)));
  }
}

int ColumnFit::WantedByRows(std::size_t column, HDC device) const {
  std::unordered_set<std::string_view> measured;
  std::size_t longest = 0;
  int widest = 0;
  for (std::size_t row = 0; row < m_list.Count(); ++row) {
    const std::string& text = m_list.Row(row).Text(column);
    // What is much shorter than another text is not wider.
    if (text.size() < longest / 2 || !measured.insert(text).second) continue;
    if (measured.size() > kMostMeasured) break;
    longest = std::max(longest, text.size());
    widest = std::max(widest, WidthOf(text, device));
  }
  return widest;
}

}  // namespace dayvane::widgets
