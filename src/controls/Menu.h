// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "controls/Control.h"

namespace dayvane::controls {

class Menu;

/// What an entry that can be checked is drawn with; an entry of a choice is one of several, of which one holds.
enum class MenuMark { None, Check, Choice };

/// A key that chooses an entry from anywhere in its window; key 0 for none. Codes and masks are those of Keys.h.
struct MenuKey {
  int key = 0;
  int modifiers = 0;
};

/// One entry of a menu. "&" in a caption marks the access key; the caption "-" is a separator.
class MenuItem : public Control {
 public:
  explicit MenuItem(std::string caption, Menu* submenu = nullptr) : m_caption(std::move(caption)), m_submenu(submenu) {}

  const std::string& Caption() const { return m_caption; }
  bool IsSeparator() const { return m_caption == "-"; }
  bool Checked() const { return m_checked; }
  void SetChecked(bool checked) { Assign(m_checked, checked); }
  MenuMark Mark() const { return m_mark; }
  void SetMark(MenuMark mark) { Assign(m_mark, mark); }
  const MenuKey& Key() const { return m_key; }
  void SetKey(const MenuKey& key) { m_key = key; }  ///< before the menu is presented
  Menu* Submenu() const { return m_submenu; }       ///< not owned; nullptr for an entry that is chosen

 private:
  std::string m_caption;
  Menu* m_submenu;
  bool m_checked = false;
  MenuMark m_mark = MenuMark::None;
  MenuKey m_key;
};

/// A menu as a control array: one event for all its entries, which carry their index.
class Menu : public Control {
 public:
  struct Entry {
    std::string caption;
    Menu* submenu = nullptr;
  };

  Menu(std::string caption, const std::vector<Entry>& entries) : m_caption(std::move(caption)) {
    for (const Entry& entry : entries) m_items.push_back(std::make_unique<MenuItem>(entry.caption, entry.submenu));
  }

  const std::string& Caption() const { return m_caption; }
  int Count() const { return static_cast<int>(m_items.size()); }
  MenuItem& operator[](int index) const { return *m_items.at(static_cast<std::size_t>(index)); }

  /// What the user's choice does: nothing for an entry that is disabled or hidden.
  void Choose(int index) {
    const MenuItem& item = (*this)[index];
    if (item.Enabled() && item.Visible() && !item.IsSeparator() && item.Submenu() == nullptr) Click.Raise(index);
  }

  Signal<int> Click;  ///< index, separators counted

 private:
  std::string m_caption;
  std::vector<std::unique_ptr<MenuItem>> m_items;
};

}  // namespace dayvane::controls
