// SPDX-License-Identifier: MIT
#include "linux/recent/ListedDocuments.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

#include "base/Text.h"
#include "linux/recent/DocumentPath.h"

namespace dayvane::recent {

namespace {

std::optional<std::string> PathOf(const RecentEntry& entry, const std::string& dataHome) {
  const bool isFolder = text::CompareIgnoringCase(entry.mimeType, "inode/directory") == 0;
  if (entry.isPrivate || isFolder) return std::nullopt;
  auto path = DocumentPath(entry.href);
  if (path && LiesInTrash(*path, dataHome)) return std::nullopt;
  return path;
}

}  // namespace

std::vector<ListedDocument> DocumentsOf(const std::vector<RecentEntry>& entries, const std::string& dataHome) {
  std::vector<ListedDocument> documents;
  std::unordered_map<std::string, std::size_t> places;
  for (const RecentEntry& entry : entries) {
    auto path = PathOf(entry, dataHome);
    if (!path) continue;
    const auto [place, isNew] = places.try_emplace(*path, documents.size());
    if (isNew) documents.push_back({*path, {}, entry.mimeType});
    for (const RecentEntry::Use& use : entry.openings)
      documents[place->second].openings.push_back({*path, use.moment, use.program, entry.mimeType});
  }
  return documents;
}

Opening LastOpening(const ListedDocument& document) {
  const auto isEarlier = [](const Opening& a, const Opening& b) { return a.moment < b.moment; };
  const auto last = std::max_element(document.openings.begin(), document.openings.end(), isEarlier);
  return last == document.openings.end() ? Opening{document.path, 0, "", document.mimeType} : *last;
}

}  // namespace dayvane::recent
