// SPDX-License-Identifier: MIT

// The desktop's list of recent documents, which careless programs write.

#include <algorithm>
#include <string>

#include "linux/recent/ListedDocuments.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

constexpr const char* kHome = "/home/ana/.local/share";
constexpr std::string_view kWitness = "/witness/of the/first entry";
constexpr std::string_view kList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\">\n"
    "<bookmark href=\"file:///witness/of%20the/first%20entry\" added=\"2026-11-20T08:00:00Z\"/>\n";

std::vector<recent::ListedDocument> Documents(std::string_view list) {
  return recent::DocumentsOf(recent::ParseRecentList(list).entries, kHome);
}

bool IsNativePath(const std::string& path) {
  return path.starts_with('/') && path.find('\0') == std::string::npos;
}

bool IsWitness(const recent::ListedDocument& document) {
  return document.path == kWitness;
}

}  // namespace

void Try(std::string_view bytes) {
  const auto documents = Documents(bytes);
  constexpr std::size_t kShortestEntry = sizeof("<bookmark/>") - 1;
  Require(documents.size() <= bytes.size() / kShortestEntry, "a list names no more documents than it has entries");
  for (const auto& document : documents) Require(IsNativePath(document.path), "a document has a path");
  const auto damaged = Documents(std::string(kList).append(bytes));
  Require(std::any_of(damaged.begin(), damaged.end(), IsWitness), "damage costs no entry that stands before it");
}

}  // namespace dayvane::fuzzing
