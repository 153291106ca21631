// SPDX-License-Identifier: MIT

// The Favorites view: the documents that were filed on enough days.

#include "app/IgnoreErrors.h"
#include "base/Text.h"
#include "shell/FMain.h"
#include "views/EmptyWords.h"
#include "views/FavoritesTable.h"
#include "views/Keys.h"

namespace dayvane {

namespace {

/// A damaged data file may hold a count that is not a number. It reaches no threshold; the others are still listed.
bool Reaches(const favorites::Value& days, std::int32_t threshold) {
  bool reaches = false;
  IgnoreErrors([&] { reaches = favorites::NumberOf(days) >= threshold; });
  return reaches;
}

/// Right-aligned in five characters, so that the order of the texts is the order of the counts.
std::string DaysText(const favorites::Value& days) {
  constexpr std::size_t kWidth = 5;
  const std::string text = "    " + favorites::TextOf(days);
  return text.size() <= kWidth ? text : text.substr(text.size() - kWidth);
}

std::string LastAccessedText(const favorites::Value& value, const platform::DateConventions& dates) {
  const auto* date = std::get_if<Date>(&value);
  return date != nullptr ? Format(*date, "yyyy/mm/dd hh:mm", dates) : favorites::TextOf(value);
}

}  // namespace

void FMain::RebuildFavorites() {
  m_oFavorites->RebuildFavorites();
  m_oFavorites->Save();
  RefreshFavorites();
}

void FMain::RefreshFavorites() {
  Assert(m_oFavorites != nullptr, ".RefreshFavorites: Favorites object is nothing");
  const controls::UpdateScope update(lvwFavorites);
  const std::string selectedKey = lvwFavorites.SelectedKey();
  lvwFavorites.Clear();
  for (const favorites::Record& record : m_oFavorites->GetFavorites()) {
    if (!Reaches(record[favorites::kDaysAccessed], m_favoritesThreshold)) continue;
    const std::string shortcutFile = favorites::TextOf(record[favorites::kShortcutFile]);
    const std::string name = favorites::TextOf(record[favorites::kTargetFileName]);
    // A damaged data file may hold one shortcut twice; the first record is the one that counts go to.
    if (lvwFavorites.Find(views::KeyOf(shortcutFile)) != nullptr) continue;
    auto& item = lvwFavorites.Add(views::KeyOf(shortcutFile), name, FavoritesImageListIndex(shortcutFile, name));
    item.subItems = {
        favorites::TextOf(record[favorites::kType]),
        m_application.shellServices.DisplayPath(text::ToLower(favorites::TextOf(record[favorites::kFolder]))),
        DaysText(record[favorites::kDaysAccessed]),
        LastAccessedText(record[favorites::kLastAccessed], m_application.desktop.dates)};
  }
  // By the list's own key and order: icons that were arranged stay so, whatever column was clicked last.
  lvwFavorites.SetSorted(true);
  lvwFavorites.SetSelectedItem(lvwFavorites.Find(selectedKey));
  lvwFavorites.SetEmptyText(emptywords::OfFavorites(m_favoritesThreshold));
  FollowSelection();
}

int FMain::FavoritesImageListIndex(const std::string& shortcutFileName, const std::string& targetFileName) {
  Assert(!text::Trim(shortcutFileName).empty(), ".FavoritesImageListIndex: Shortcut file name is missing");
  Assert(!text::Trim(targetFileName).empty(), ".FavoritesImageListIndex: Target file name is missing");
  return ImageListIndex(imlFavoritesLarge, imlFavoritesSmall, shortcutFileName, targetFileName);
}

}  // namespace dayvane
