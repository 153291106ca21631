// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "base/Text.h"
#include "linux/recent/RecentDisk.h"

namespace dayvane::recent {

/// What the Recent folder holds that no remembered document owns: the user's own files, and shortcuts that an earlier
/// session made before the state was lost. Those are adopted by the documents they lead to; the user's files are left
/// alone, and their names are taken.
class ForeignShortcuts {
 public:
  explicit ForeignShortcuts(const RecentDisk& disk) : m_disk(disk) {}

  void Clear();
  void Add(const FolderItem& item) { m_items.emplace(text::ToLower(item.name), item); }

  bool IsEmpty() const { return m_items.empty(); }

  /// Whether something has this name, in any letter case.
  bool Has(const std::string& name) const { return m_items.contains(text::ToLower(name)); }

  /// Whether there is any shortcut to adopt. The first call after a Clear reads them all.
  bool HasShortcuts();

  /// The shortcut with exactly these bytes, which is foreign no longer; nothing when there is none.
  std::optional<FolderItem> Adopt(const std::string& bytes);

 private:
  using Items = std::unordered_map<std::string, FolderItem>;

  void ReadShortcuts();

  const RecentDisk& m_disk;
  Items m_items;                     ///< by lower-case name
  std::optional<Items> m_shortcuts;  ///< shortcuts by their bytes, once read
};

}  // namespace dayvane::recent
