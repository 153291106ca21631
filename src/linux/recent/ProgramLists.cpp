// SPDX-License-Identifier: MIT
#include "linux/recent/ProgramLists.h"

#include <algorithm>
#include <utility>

#include "base/Error.h"
#include "linux/recent/ListedDocuments.h"

namespace dayvane::recent {

namespace fs = std::filesystem;

namespace {

/// Only a list that is there counts as due: most programs keep none.
bool HasNews(const RecentListFile& list) {
  return list.IsDue() && list.IsThere();
}

/// The last opening of a document. Some programs give its time when they have loaded the document, a few seconds after
/// they were asked to open it, which is in the list too.
Opening OpeningOf(const ListedDocument& document) {
  Opening opening = LastOpening(document);
  const Moment last = opening.moment;
  for (const Opening& other : document.openings)
    if (other.moment < opening.moment && last - other.moment <= kOneOpening) opening.moment = other.moment;
  return opening;
}

}  // namespace

ProgramLists::ProgramLists(std::string name, const std::string& list, std::string dataHome)
    : m_name(std::move(name)), m_dataHome(std::move(dataHome)) {
  AddList(list);
}

ProgramLists::ProgramLists(std::string name, Kind kind, std::string dataHome)
    : m_name(std::move(name)), m_kind(std::move(kind)), m_dataHome(std::move(dataHome)) {}

bool ProgramLists::IsDue() {
  if (!m_kind.folder.empty()) FindLists();
  return m_failure || std::any_of(m_lists.begin(), m_lists.end(), [](const auto& list) { return HasNews(*list); });
}

void ProgramLists::FindLists() {
  std::error_code failure;
  const auto time = fs::last_write_time(m_kind.folder, failure);
  const FolderTime changed = failure ? FolderTime() : FolderTime(time);
  if (std::exchange(m_found, changed) == changed) return;
  for (fs::directory_iterator entry(m_kind.folder, failure), end; !failure && entry != end; entry.increment(failure))
    for (const std::string& place : m_kind.places) AddList(entry->path().string() + "/" + place);
}

void ProgramLists::AddList(const std::string& path) {
  const auto isThis = [&](const auto& list) { return list->Path() == path; };
  if (std::none_of(m_lists.begin(), m_lists.end(), isThis)) m_lists.push_back(std::make_unique<RecentListFile>(path));
}

Source::Reading ProgramLists::Read(const std::string& /*memory*/) {
  if (m_failure) throw Error(*std::exchange(m_failure, std::nullopt));
  Reading reading;
  bool isAnyRead = false;
  for (const auto& list : m_lists) {
    if (!HasNews(*list)) continue;
    try {
      ReadList(*list, reading.openings);
      isAnyRead = true;
    } catch (const Error& error) {
      m_failure = error;
    }
  }
  if (m_failure && !isAnyRead) throw Error(*std::exchange(m_failure, std::nullopt));
  return reading;
}

void ProgramLists::ReadList(RecentListFile& list, std::vector<Opening>& openings) const {
  const ListReading reading = list.Read();
  if (reading.condition == ListCondition::Unreadable || reading.condition == ListCondition::TooLarge)
    throw Error(kPathFileAccess, "The list cannot be read or is too large", list.Path());
  for (const ListedDocument& document : DocumentsOf(reading.list.entries, m_dataHome))
    if (!document.openings.empty()) openings.push_back(OpeningOf(document));
}

std::vector<std::unique_ptr<Source>> KnownProgramLists(const std::string& home, const std::string& dataHome) {
  const std::string name = "/recently-used.xbel";
  const std::string ofTextEditor = "/org.gnome.TextEditor" + name;
  std::vector<std::unique_ptr<Source>> sources;
  sources.push_back(
      std::make_unique<ProgramLists>("the list of org.gnome.TextEditor", dataHome + ofTextEditor, dataHome));
  const ProgramLists::Kind flatpaks{home + "/.var/app", {"data" + name, "data" + ofTextEditor}};
  sources.push_back(std::make_unique<ProgramLists>("the lists of Flatpak programs", flatpaks, dataHome));
  const ProgramLists::Kind snaps{home + "/snap", {"current/.local/share" + name}};
  sources.push_back(std::make_unique<ProgramLists>("the lists of snaps", snaps, dataHome));
  return sources;
}

}  // namespace dayvane::recent
