// SPDX-License-Identifier: MIT
#include "linux/recent/ForeignShortcuts.h"

#include <utility>

#include "base/Error.h"
#include "base/Text.h"

namespace dayvane::recent {

void ForeignShortcuts::Clear() {
  m_items.clear();
  m_shortcuts.reset();
}

bool ForeignShortcuts::HasShortcuts() {
  if (!m_shortcuts) ReadShortcuts();
  return !m_shortcuts->empty();
}

std::optional<FolderItem> ForeignShortcuts::Adopt(const std::string& bytes) {
  if (!HasShortcuts()) return std::nullopt;
  auto found = m_shortcuts->extract(bytes);
  if (found.empty()) return std::nullopt;
  m_items.erase(text::ToLower(found.mapped().name));
  return std::move(found.mapped());
}

void ForeignShortcuts::ReadShortcuts() {
  m_shortcuts.emplace();
  for (const auto& [lowerName, item] : m_items) {
    if (!item.isFile || !item.name.ends_with(".lnk")) continue;
    try {
      if (auto bytes = m_disk.ReadShortcut(item.name)) m_shortcuts->emplace(std::move(*bytes), item);
    } catch (const Error&) {
      // A file that cannot be read stays where it is, like any other that is not ours.
    }
  }
}

}  // namespace dayvane::recent
