// SPDX-License-Identifier: MIT
#include "linux/widgets/MenuPresenter.h"

#include <QStyleOptionMenuItem>

#include "linux/widgets/Keys.h"

namespace dayvane::widgets {

namespace {

constexpr const char* kIsChoice = "isChoice";  ///< of an action, which may be drawn when its control has gone

}  // namespace

MenuPresenter::MenuPresenter(controls::Menu& menu, QWidget* parent)
    : QMenu(QString::fromStdString(menu.Caption()), parent), m_menu(menu) {
  for (int index = 0; index < menu.Count(); ++index) AddItem(index);
  const auto showMenu = [this] {
    menuAction()->setVisible(m_menu.Visible());
    menuAction()->setEnabled(m_menu.Enabled());
  };
  m_connections.push_back(menu.Changed.ConnectScoped(showMenu));
  showMenu();
}

void MenuPresenter::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
  QMenu::initStyleOption(option, action);
  if (action->property(kIsChoice).toBool()) option->checkType = QStyleOptionMenuItem::Exclusive;
}

void MenuPresenter::SetDefaultItem(int index) {
  setDefaultAction(index >= 0 && index < m_menu.Count() ? m_shown[static_cast<std::size_t>(index)] : nullptr);
}

int MenuPresenter::FirstVisibleItem() const {
  for (int index = 0; index < m_menu.Count(); ++index)
    if (m_menu[index].Visible()) return index;
  return -1;
}

void MenuPresenter::AddItem(int index) {
  controls::MenuItem& item = m_menu[index];
  if (item.Submenu() != nullptr) {
    m_submenus.push_back(std::make_unique<MenuPresenter>(*item.Submenu()));
    m_shown.push_back(m_submenus.back()->menuAction());
  } else {
    m_actions.push_back(std::make_unique<QAction>());
    m_shown.push_back(m_actions.back().get());
    connect(
        m_shown.back(), &QAction::triggered, this, [this, index] { Choose(index); }, Qt::QueuedConnection);
  }
  // Some styles would draw a separator's caption as a heading.
  if (item.IsSeparator())
    m_shown.back()->setSeparator(true);
  else
    m_shown.back()->setText(QString::fromStdString(item.Caption()));
  m_shown.back()->setShortcut(KeySequenceOf(item.Key().key, item.Key().modifiers));
  addAction(m_shown.back());
  m_connections.push_back(item.Changed.ConnectScoped([this, index] { ShowItem(index); }));
  ShowItem(index);
}

void MenuPresenter::ShowItem(int index) {
  const controls::MenuItem& item = m_menu[index];
  QAction& action = *m_shown[static_cast<std::size_t>(index)];
  action.setEnabled(item.Enabled());
  action.setVisible(item.Visible());
  // Also while it is not checked, which a screen reader says.
  action.setCheckable(item.Mark() != controls::MenuMark::None);
  action.setProperty(kIsChoice, item.Mark() == controls::MenuMark::Choice);
  action.setChecked(item.Checked());
}

void MenuPresenter::Choose(int index) {
  ShowItem(index);  // the widget has turned the check mark by itself
  m_deferred.AfterWorkAndQuestions([this, index] { m_menu.Choose(index); });
}

}  // namespace dayvane::widgets
