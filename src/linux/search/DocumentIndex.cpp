// SPDX-License-Identifier: MIT
#include "linux/search/DocumentIndex.h"

#include <algorithm>
#include <functional>
#include <unordered_set>
#include <utility>

#include "app/IgnoreErrors.h"
#include "app/MDayvane.h"
#include "app/ShellServices.h"
#include "base/Text.h"
#include "linux/files/NativePath.h"
#include "views/DailyTree.h"

namespace dayvane::search {

namespace {

using platform::EntryKind;

constexpr std::string_view kExtension = ".lnk";
constexpr std::chrono::seconds kBetweenLooks{5};
constexpr std::chrono::seconds kCoarseMoment{2};  ///< of the coarsest file systems

/// Without the number that keeps the links of documents of one name apart, as in "Report.odt (2)". It stands behind an
/// ending there; in a name without one it may be the document's own.
std::string_view WithoutNumber(std::string_view name) {
  const std::size_t bracket = name.rfind(" (");
  if (bracket == std::string_view::npos || !name.ends_with(')')) return name;
  const std::string_view number = name.substr(bracket + 2, name.size() - bracket - 3);
  const std::string_view document = name.substr(0, bracket);
  const std::size_t ending = document.rfind('.');
  const bool hasEnding = ending != std::string_view::npos && document.find(' ', ending) == std::string_view::npos;
  return text::IsNumeric(number) && hasEnding ? document : name;
}

std::string NameOf(std::string_view link) {
  return files::ForReading(std::string(WithoutNumber(link.substr(0, link.size() - kExtension.size()))));
}

bool IsLink(const std::string& name) {
  return name.size() > kExtension.size() && text::EndsWithIgnoringCase(name, kExtension);
}

bool HoldsAll(const std::string& folded, const std::vector<std::string>& words) {
  return std::ranges::all_of(words, [&](const std::string& word) { return folded.find(word) != std::string::npos; });
}

}  // namespace

DocumentIndex::DocumentIndex(Application& application, std::string dailyPath, Clock clock)
    : m_application(application), m_dailyPath(std::move(dailyPath)), m_clock(std::move(clock)) {}

std::vector<Document> DocumentIndex::Find(const std::vector<std::string>& words, std::size_t most) {
  std::vector<std::string> folded;
  for (const std::string& word : words)
    if (!word.empty()) folded.push_back(text::ToLower(word));
  if (folded.empty()) return {};
  if (!m_lastLook || m_clock() - *m_lastLook >= kBetweenLooks) Look();
  std::vector<Document> found = FindNow(folded, most);
  if (m_lastLook) return found;
  Look();
  return FindNow(folded, most);
}

std::optional<Document> DocumentIndex::Describe(const std::string& id) const {
  constexpr std::size_t kPartsBelowDaily = 4;
  if (!id.starts_with(m_dailyPath + "\\")) return std::nullopt;
  const auto parts = text::Split(std::string_view(id).substr(m_dailyPath.size() + 1), '\\');
  const bool isPlain = std::ranges::none_of(parts, [](std::string_view part) {
    return part.empty() || part.starts_with('.') || part.find('/') != std::string_view::npos ||
           part.find('\0') != std::string_view::npos;
  });
  if (parts.size() != kPartsBelowDaily || !isPlain || !IsLink(std::string(parts.back()))) return std::nullopt;
  Document document{id, NameOf(parts.back()), {}};
  const std::string folder = id.substr(0, id.rfind('\\'));
  if (!IgnoreErrors([&] { document.day = PathToDate(m_application, folder); })) return std::nullopt;
  return document;
}

void DocumentIndex::Look() {
  m_haveChanged = false;
  for (auto& [folder, day] : m_days) day.isThere = false;
  LookThrough(m_dailyPath, dailytree::kYearLevel);
  m_haveChanged |= std::erase_if(m_days, [](const auto& day) { return !day.second.isThere; }) > 0;
  if (m_haveChanged) NameAll();
  m_lastLook = m_clock();
}

void DocumentIndex::LookThrough(const std::string& folder, int level) {
  // A folder that cannot be read has nothing to find.
  IgnoreErrors([&] {
    if (level > dailytree::kDayLevel) return LookAtDay(folder);
    auto& files = m_application.desktop.files;
    for (const auto& entry : files.List(dailytree::ListedFolder(files, folder, level)))
      if (entry.kind == EntryKind::Folder && !entry.hidden) LookThrough(folder + "\\" + entry.name, level + 1);
  });
}

void DocumentIndex::LookAtDay(const std::string& folder) {
  auto& files = m_application.desktop.files;
  const auto status = files.Status(folder);
  if (!status) return;
  const Date date = PathToDate(m_application, folder);
  const auto [known, isNew] = m_days.try_emplace(folder);
  Day& day = known->second;
  day.date = date;
  day.isThere = true;
  if (!isNew && day.changed == status->written.nanoseconds) return;
  m_haveChanged = true;
  const bool isSettled = m_application.desktop.clock.Now() - status->written.local > kCoarseMoment;
  day.changed = isSettled ? std::optional(status->written.nanoseconds) : std::nullopt;
  day.links.clear();
  for (auto& entry : files.List(folder))
    if (entry.kind == EntryKind::File && !entry.hidden && IsLink(entry.name))
      day.links.push_back(std::move(entry.name));
}

void DocumentIndex::NameAll() {
  std::vector<std::pair<const std::string*, const Day*>> days;
  for (const auto& [folder, day] : m_days) days.emplace_back(&folder, &day);
  std::ranges::stable_sort(days, std::greater(), [](const auto& day) { return day.second->date; });
  m_names.clear();
  std::unordered_set<std::string_view> named;
  for (const auto& [folder, day] : days)
    for (const std::string& link : day->links)
      if (named.insert(link).second)
        m_names.push_back({text::ToLower(NameOf(link)), *folder + "\\" + link, day->date, Kind::Unknown});
}

std::vector<Document> DocumentIndex::FindNow(const std::vector<std::string>& words, std::size_t most) {
  std::vector<Document> found;
  for (Name& name : m_names) {
    if (found.size() == most) break;
    if (!HoldsAll(name.folded, words) || !IsDocument(name)) continue;
    found.push_back({name.path, NameOf(std::string_view(name.path).substr(name.path.rfind('\\') + 1)), name.day});
  }
  return found;
}

bool DocumentIndex::IsDocument(Name& name) {
  if (!m_application.desktop.files.Status(name.path)) {
    Outdate();
    return false;
  }
  if (name.kind == Kind::Unknown) {
    name.kind = Kind::Other;
    IgnoreErrors([&] {
      const platform::ShellLink link = m_application.shellServices.ReadShortcut(name.path).link;
      if (!link.target.empty() && !LeadsToProgram(link)) name.kind = Kind::Document;
    });
  }
  return name.kind == Kind::Document;
}

}  // namespace dayvane::search
