// SPDX-License-Identifier: MIT
#include "controls/Menu.h"

#include <utility>

namespace dayvane::controls {

MenuItem::MenuItem(std::string caption, Menu* submenu) : m_caption(std::move(caption)), m_submenu(submenu) {}

Menu::Menu(std::string caption, const std::vector<Entry>& entries) : m_caption(std::move(caption)) {
  for (const Entry& entry : entries) m_items.push_back(std::make_unique<MenuItem>(entry.caption, entry.submenu));
}

void Menu::Choose(int index) {
  const MenuItem& item = (*this)[index];
  if (item.Enabled() && item.Visible() && !item.IsSeparator() && item.Submenu() == nullptr) Click.Raise(index);
}

}  // namespace dayvane::controls
