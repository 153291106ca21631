// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dayvane::recent {

/// Reads LibreOffice's list of recent documents out of its settings, "registrymodifications.xcu".
///
/// That is XML with one <item> a line. The items of the list's order have a node for each number, 0 for the newest,
/// and its property HistoryItemRef is an address:
///
///     <item oor:path="/org.openoffice.Office.Histories/Histories/org.openoffice.Office.Histories:
///         HistoryInfo['PickList']/OrderList"><node oor:name="0" oor:op="replace"><prop oor:name="HistoryItemRef"
///         oor:op="fuse"><value>file:///home/ana/Report.odt</value></prop></node></item>
///
/// The lines beside them hold a picture of each document, so a line of more than 64 KB is passed over: the memory taken
/// is bounded, whatever the file holds. Of the list the newest thousand count.
class PickListReader {
 public:
  static constexpr std::size_t kMostPicks = 1000;

  /// The next bytes of the file.
  void Feed(std::string_view bytes);

  /// The addresses, newest first, each once; nothing when the file has no end and so was read while it was written.
  std::optional<std::vector<std::string>> Finish();

 private:
  void FeedLine(std::string_view part);
  void EndLine();
  void ReadItem(std::string_view item);
  void ReadNode(std::string_view node);
  void KeepTail(std::string_view bytes);

  std::string m_line;
  bool m_isTooLong = false;                    ///< the present line, of which nothing is kept then
  std::string m_tail;                          ///< the last characters but blanks
  std::map<std::size_t, std::string> m_picks;  ///< addresses by number
};

/// The places [first, last) of a list, newest first, that have been opened since the list was as before.
///
/// What is opened goes to the top, or below those entries that the user pinned there; the others keep their order. What
/// stands at the top as it did before shows no sign of having been opened again.
struct PickedRange {
  std::size_t first = 0;
  std::size_t last = 0;
};
PickedRange PickedSince(const std::vector<std::uint64_t>& before, const std::vector<std::uint64_t>& now);

}  // namespace dayvane::recent
