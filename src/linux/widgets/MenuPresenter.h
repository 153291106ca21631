// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <memory>
#include <vector>

#include "controls/Deferred.h"
#include "controls/Menu.h"

namespace dayvane::widgets {

/// Shows a menu and its submenus. The program learns what was chosen after the menu has closed and its event is
/// done: a command may open a message box and wait for it, for which a screen reader that chose it must not wait.
class MenuPresenter : public QMenu {
 public:
  explicit MenuPresenter(controls::Menu& menu, QWidget* parent = nullptr);

  /// Draws the item as the default one; -1 for none.
  void SetDefaultItem(int index);

  /// The first item that is visible; -1 when there is none.
  int FirstVisibleItem() const;

 protected:
  void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;

 private:
  void AddItem(int index);
  void ShowItem(int index);
  void Choose(int index);

  controls::Menu& m_menu;
  std::vector<std::unique_ptr<MenuPresenter>> m_submenus;
  std::vector<std::unique_ptr<QAction>> m_actions;  ///< by index; those of submenus belong to these
  std::vector<QAction*> m_shown;
  controls::Deferred m_deferred;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
