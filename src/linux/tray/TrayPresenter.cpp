// SPDX-License-Identifier: MIT
#include "linux/tray/TrayPresenter.h"

#include <QApplication>
#include <utility>

#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"
#include "shell/MCommands.h"

namespace dayvane::widgets {

namespace {

int ButtonOf(QSystemTrayIcon::ActivationReason reason) {
  // Some panels tell the second of two quick clicks as another one, embedding trays as a double click; the right button
  // is the panel's.
  if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) return 1;
  return reason == QSystemTrayIcon::MiddleClick ? 4 : 0;
}

}  // namespace

TrayPresenter::TrayPresenter(controls::SystemTray& control, controls::Menu& menu, controls::Form& form,
                             TrayWatch& watch, LauncherWatch& launcher, std::chrono::milliseconds patience)
    : m_control(control),
      m_form(form),
      m_watch(watch),
      m_menu(menu),
      m_wayBack(form, watch, launcher, Commands(), patience) {
  m_connections.push_back(control.Changed.ConnectScoped([this] { Show(); }));
  m_connections.push_back(form.Changed.ConnectScoped([this] { Show(); }));
  m_connections.push_back(watch.Changed.ConnectScoped([this] { Show(); }));
  for (QAction* command : {&m_show, &m_hide})
    QObject::connect(
        command, &QAction::triggered, command, [this] { Activate(QSystemTrayIcon::Trigger); }, Qt::QueuedConnection);
  QObject::connect(&m_menu, &QMenu::aboutToShow, &m_menu, [this] { m_menu.SetDefaultItem(m_menu.FirstVisibleItem()); });
  Show();
  m_wayBack.Follow();
}

QList<QAction*> TrayPresenter::Commands() {
  QList<QAction*> commands = m_menu.actions();
  for (const auto& [index, command] : {std::pair(kTrayShow, &m_show), std::pair(kTrayHide, &m_hide)}) {
    command->setText(commands[index]->text());
    commands[index] = command;
  }
  return commands;
}

void TrayPresenter::Activate(QSystemTrayIcon::ActivationReason reason) {
  constexpr int kId = 0;
  const int button = ButtonOf(reason);
  if (button == 0) return;
  // An open box or dialog must be answered first; the user may have lost sight of it.
  if (QWidget* asking = QApplication::activeModalWidget()) {
    asking->raise();
    asking->activateWindow();
    return;
  }
  // A window that has come or gone meanwhile is what the click asked for.
  m_deferred.AfterWork([this, button, wasVisible = m_form.Visible()] {
    if (m_form.Visible() == wasVisible) m_control.MouseUp.Raise(button, kId);
  });
}

void TrayPresenter::Show() {
  if (m_watch.IsThere() && m_control.Picture() != 0) ShowIcon();
  m_show.setVisible(!m_form.Visible());
  m_hide.setVisible(m_form.Visible());
  StandIn().SetTip(QString::fromStdString(m_control.TipText()));
  m_late.Changed(m_control.Picture() == kBusyIcon);
}

void TrayPresenter::ShowPicture() {
  if (std::exchange(m_shownPicture, m_control.Picture()) == m_control.Picture()) return;
  const QIcon icon = PictureIcon(m_shownPicture);
  if (m_icon != nullptr) m_icon->setIcon(icon);
  StandIn().SetPicture(icon);
}

void TrayPresenter::ShowIcon() {
  if (m_icon == nullptr) {
    m_icon = std::make_unique<QSystemTrayIcon>();
    m_icon->setContextMenu(&m_menu);
    QObject::connect(m_icon.get(), &QSystemTrayIcon::activated, m_icon.get(),
                     [this](QSystemTrayIcon::ActivationReason reason) { Activate(reason); });
    m_icon->setIcon(PictureIcon(m_control.Picture()));
  }
  m_icon->setToolTip(QString::fromStdString(m_control.TipText()));
  m_icon->setVisible(m_control.Visible());
}

}  // namespace dayvane::widgets
