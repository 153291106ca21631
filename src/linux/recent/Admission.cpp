// SPDX-License-Identifier: MIT
#include "linux/recent/Admission.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "linux/recent/DocumentPath.h"

namespace dayvane::recent {

namespace {

bool LiesBelow(const std::string& path, const std::string& folder) {
  return !folder.empty() && path.starts_with(folder + "/");
}

}  // namespace

Rules RulesOf(const xdg::Environment& environment) {
  const std::string runtime = xdg::RuntimeFolder(environment);
  Rules rules;
  rules.home = environment.home;
  rules.dataHome = xdg::DataFolder(environment);
  rules.ownFolders = {xdg::CacheFolder(environment), environment.temporary, runtime};
  rules.portalFolder = runtime + "/doc";
  rules.drives = MountedDrives;
  return rules;
}

void Admission::Filter(Tidings& tidings) {
  if (tidings.list) tidings.list->documents = Admitted(std::move(tidings.list->documents));
  tidings.arrived = Admitted(std::move(tidings.arrived));
  for (Sources::News& told : tidings.sources)
    std::erase_if(told.openings, [this](Opening& opening) { return !Admits(opening); });
}

/// Where the document lies that is told of under this path; nothing when it must not be recorded.
std::optional<std::string> Admission::PathOf(const std::string& told) {
  auto path = m_portal.Shows(told) ? m_portal.Resolve(told) : told;
  if (path && (LiesInTrash(*path, m_rules.dataHome) || LiesInOwnFolder(*path))) return std::nullopt;
  return path;
}

/// The home of a guest lies among the temporary files. What lies there is the user's all the same.
bool Admission::LiesInOwnFolder(const std::string& path) const {
  return std::any_of(m_rules.ownFolders.begin(), m_rules.ownFolders.end(), [&](const std::string& folder) {
    return LiesBelow(path, folder) && !(LiesBelow(m_rules.home, folder) && LiesBelow(path, m_rules.home));
  });
}

bool Admission::Admits(Opening& opening) {
  auto path = PathOf(opening.path);
  if (!path) return false;
  opening.path = std::move(*path);
  return !IsExcluded(opening);
}

/// Two that have turned out to be one are made one.
std::vector<ListedDocument> Admission::Admitted(std::vector<ListedDocument> documents) {
  std::vector<ListedDocument> admitted;
  std::unordered_map<std::string, std::size_t> places;
  for (ListedDocument& document : documents) {
    if (!Admits(document)) continue;
    const auto [place, isNew] = places.try_emplace(document.path, admitted.size());
    if (isNew)
      admitted.push_back(std::move(document));
    else
      std::ranges::move(document.openings, std::back_inserter(admitted[place->second].openings));
  }
  return admitted;
}

bool Admission::Admits(ListedDocument& document) {
  auto path = PathOf(document.path);
  if (!path) return false;
  document.path = std::move(*path);
  for (Opening& opening : document.openings) opening.path = document.path;
  if (IsExcluded(LastOpening({document.path, {}, document.mimeType}))) return false;
  const bool isTimed = !document.openings.empty();
  std::erase_if(document.openings, [this](const Opening& opening) { return IsExcluded(opening); });
  return !isTimed || !document.openings.empty();
}

}  // namespace dayvane::recent
