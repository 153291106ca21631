// SPDX-License-Identifier: MIT
#include "shell/FMainControls.h"
#include "windows/forms/MainWindow.h"
#include "windows/widgets/Keys.h"

namespace dayvane::widgets {

MainMenu::MainMenu(FMainControls& main)
    : m_main(main),
      m_file(main.mnuFilePopup),
      m_view(main.mnuViewPopup, m_file.NextCommand()),
      m_tools(main.mnuToolsPopup, m_view.NextCommand()),
      m_help(main.mnuHelpPopup, m_tools.NextCommand()),
      m_helpCommand(m_help.NextCommand()),
      m_bar(CreateMenu()) {
  std::vector<ACCEL> keys{AcceleratorOf({kWindowHelpKey, 0}, static_cast<WORD>(m_helpCommand))};
  for (const MenuPresenter* menu : {&m_file, &m_view, &m_tools, &m_help}) {
    menu->AddKeysTo(keys);
    AppendMenuW(m_bar.get(), MF_POPUP, reinterpret_cast<UINT_PTR>(menu->Handle()),
                ShownText(menu->Menu().Caption()).c_str());
  }
  m_keys.reset(CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
}

MainMenu::~MainMenu() {
  // The bar would end its menus, which end by themselves.
  while (GetMenuItemCount(m_bar.get()) > 0)
    if (RemoveMenu(m_bar.get(), 0, MF_BYPOSITION) == 0) return;
}

bool MainMenu::Choose(UINT command) {
  if (command == m_helpCommand) {
    m_deferred.AfterWorkAndQuestions([this] { m_main.sftToolbar[kHelpButton].Press(); });
    return true;
  }
  return m_file.Choose(command) || m_view.Choose(command) || m_tools.Choose(command) || m_help.Choose(command);
}

}  // namespace dayvane::widgets
