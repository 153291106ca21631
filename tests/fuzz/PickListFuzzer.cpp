// SPDX-License-Identifier: MIT

// LibreOffice's list of recent documents, in its settings.

#include <algorithm>
#include <string>

#include "linux/recent/PickList.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

using recent::PickedSince;
using recent::PickListReader;
using Places = std::vector<std::uint64_t>;

constexpr std::string_view kWitness =
    "<oor:items>\n<item oor:path=\"/org.openoffice.Office.Histories/Histories/org.openoffice.Office.Histories:"
    "HistoryInfo['PickList']/OrderList\"><node oor:name=\"999\"><prop "
    "oor:name=\"HistoryItemRef\"><value>file:///witness"
    "</value></prop></node></item>\n";

std::optional<std::vector<std::string>> Picks(std::string_view bytes, std::size_t atOnce) {
  PickListReader reader;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(atOnce, bytes.size()))) reader.Feed(bytes.substr(0, atOnce));
  return reader.Finish();
}

/// A user opens documents in the order of these bytes, out of a list of ten.
void TryPicking(std::string_view bytes) {
  const Places before = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
  Places now = before;
  Places opened;
  for (const char byte : bytes.substr(0, 20)) {
    const auto entry = static_cast<unsigned char>(byte) % 16U;  // some are new
    std::erase(now, entry);
    now.insert(now.begin(), entry);
    opened.push_back(entry);
  }
  const auto range = PickedSince(before, now);
  Require(range.first <= range.last && range.last <= now.size(), "what was opened lies in the list");
  for (auto i = range.first; i < range.last; ++i)
    Require(std::ranges::find(opened, now[i]) != opened.end(), "nothing is told that was not opened");
}

}  // namespace

void Try(std::string_view bytes) {
  const auto whole = Picks(bytes, bytes.size());
  const std::size_t atOnce = bytes.empty() ? 1 : 1 + static_cast<unsigned char>(bytes.back()) % 64U;
  Require(Picks(bytes, atOnce) == whole, "it does not matter how a file is cut into pieces");
  const auto with = Picks(std::string(kWitness).append(bytes) + "\n</oor:items>\n", 100);
  Require(with && !with->empty(), "what stands before damage is read");
  Require(with->size() <= 1 + bytes.size() / (sizeof("<node ") - 1), "there are no more entries than nodes");
  TryPicking(bytes);
}

}  // namespace dayvane::fuzzing
