// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "controls/Deferred.h"
#include "controls/Menu.h"
#include "windows/widgets/GdiHandles.h"

namespace dayvane::widgets {

/// Shows a menu and its submenus, whose entries are commands numbered on from a first one. The program learns what was
/// chosen when it can begin something new.
class MenuPresenter {
 public:
  static constexpr UINT kFirstCommand = 100;  ///< smaller ones are those of the system's boxes, such as IDCANCEL

  /// The menu must outlive this.
  explicit MenuPresenter(controls::Menu& menu, UINT firstCommand = kFirstCommand);
  MenuPresenter(const MenuPresenter&) = delete;
  MenuPresenter& operator=(const MenuPresenter&) = delete;
  ~MenuPresenter();

  HMENU Handle() const { return m_handle.get(); }  ///< the same as long as this lives
  const controls::Menu& Menu() const { return m_menu; }

  UINT NextCommand() const { return m_nextCommand; }  ///< the first one that is free after this menu's

  /// Draws the entry of this index as the default one; -1 for none.
  void SetDefaultItem(int index);

  /// What the user's choice does. Returns whether the command is one of this menu's.
  bool Choose(UINT command);

  /// Adds the keys of the entries.
  void AddKeysTo(std::vector<ACCEL>& keys) const;

 private:
  struct Shown {
    UINT command = 0;
    std::unique_ptr<MenuPresenter> submenu;
    bool isVisible = false;
  };

  void ShowItem(int index);
  void Insert(int index, UINT place);
  void Detach();
  UINT PlaceOf(int index) const;  ///< among the entries that are visible
  UINT StateOf(int index) const;

  controls::Menu& m_menu;
  MenuHandle m_handle;
  std::vector<Shown> m_items;
  UINT m_nextCommand;
  int m_defaultItem = -1;
  controls::Deferred m_deferred;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
