// SPDX-License-Identifier: MIT
#include "windows/widgets/MenuPresenter.h"

#include <algorithm>
#include <string>

#include "windows/widgets/Keys.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

std::wstring WordsOf(const controls::MenuItem& item) {
  std::wstring words = ShownText(item.Caption());
  if (const std::wstring key = KeyWords(item.Key()); !key.empty()) words += L'\t' + key;
  return words;
}

}  // namespace

MenuPresenter::MenuPresenter(controls::Menu& menu, UINT firstCommand)
    : m_menu(menu),
      m_handle(CreatePopupMenu()),
      m_items(static_cast<std::size_t>(menu.Count())),
      m_nextCommand(firstCommand) {
  for (int index = 0; index < menu.Count(); ++index) {
    Shown& shown = m_items[static_cast<std::size_t>(index)];
    shown.command = m_nextCommand++;
    if (controls::Menu* submenu = menu[index].Submenu()) {
      shown.submenu = std::make_unique<MenuPresenter>(*submenu, m_nextCommand);
      m_nextCommand = shown.submenu->NextCommand();
    }
    m_connections.push_back(menu[index].Changed.ConnectScoped([this, index] { ShowItem(index); }));
    ShowItem(index);
  }
}

MenuPresenter::~MenuPresenter() {
  Detach();
}

void MenuPresenter::Detach() {
  // A menu that ends would end its submenus, which end by themselves.
  while (GetMenuItemCount(m_handle.get()) > 0)
    if (RemoveMenu(m_handle.get(), 0, MF_BYPOSITION) == 0) return;
}

void MenuPresenter::ShowItem(int index) {
  Shown& shown = m_items[static_cast<std::size_t>(index)];
  const UINT place = PlaceOf(index);
  // The system has no hidden entries: one that is hidden is not there.
  if (shown.isVisible) RemoveMenu(m_handle.get(), place, MF_BYPOSITION);
  shown.isVisible = m_menu[index].Visible();
  if (shown.isVisible) Insert(index, place);
}

UINT MenuPresenter::PlaceOf(int index) const {
  return static_cast<UINT>(
      std::count_if(m_items.begin(), m_items.begin() + index, [](const Shown& shown) { return shown.isVisible; }));
}

UINT MenuPresenter::StateOf(int index) const {
  const controls::MenuItem& item = m_menu[index];
  return static_cast<UINT>((item.Enabled() ? MFS_ENABLED : MFS_DISABLED) |
                           (item.Checked() ? MFS_CHECKED : MFS_UNCHECKED) | (index == m_defaultItem ? MFS_DEFAULT : 0));
}

void MenuPresenter::Insert(int index, UINT place) {
  const controls::MenuItem& item = m_menu[index];
  const Shown& shown = m_items[static_cast<std::size_t>(index)];
  std::wstring words = WordsOf(item);
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE | (item.IsSeparator() ? 0U : MIIM_STRING) |
               (shown.submenu != nullptr ? MIIM_SUBMENU : 0U);
  info.fType = item.IsSeparator() ? MFT_SEPARATOR : MFT_STRING;
  if (item.Mark() == controls::MenuMark::Choice) info.fType |= MFT_RADIOCHECK;
  info.fState = StateOf(index);
  info.wID = shown.command;
  if (shown.submenu != nullptr) info.hSubMenu = shown.submenu->Handle();
  info.dwTypeData = words.data();
  InsertMenuItemW(m_handle.get(), place, TRUE, &info);
}

void MenuPresenter::SetDefaultItem(int index) {
  const int before = std::exchange(m_defaultItem, index);
  for (const int changed : {before, index})
    if (changed >= 0 && changed < m_menu.Count()) ShowItem(changed);
}

bool MenuPresenter::Choose(UINT command) {
  for (int index = 0; index < m_menu.Count(); ++index) {
    const Shown& shown = m_items[static_cast<std::size_t>(index)];
    if (shown.submenu != nullptr && shown.submenu->Choose(command)) return true;
    if (shown.command != command) continue;
    m_deferred.AfterWorkAndQuestions([this, index] { m_menu.Choose(index); });
    return true;
  }
  return false;
}

void MenuPresenter::AddKeysTo(std::vector<ACCEL>& keys) const {
  for (int index = 0; index < m_menu.Count(); ++index) {
    const Shown& shown = m_items[static_cast<std::size_t>(index)];
    if (m_menu[index].Key().key != 0)
      keys.push_back(AcceleratorOf(m_menu[index].Key(), static_cast<WORD>(shown.command)));
    if (shown.submenu != nullptr) shown.submenu->AddKeysTo(keys);
  }
}

}  // namespace dayvane::widgets
