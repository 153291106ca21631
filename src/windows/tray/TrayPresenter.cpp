// SPDX-License-Identifier: MIT
#include "windows/tray/TrayPresenter.h"

#include <utility>

#include "controls/Keys.h"
#include "resources/MResourceConstants.h"
#include "windows/forms/Questions.h"

namespace dayvane::widgets {

TrayPresenter::TrayPresenter(controls::SystemTray& control, controls::Form& form, TrayIcon::Shell shell,
                             std::chrono::milliseconds patience)
    : m_control(control), m_form(form), m_icon(std::move(shell)), m_wayBack(form, m_icon, patience) {
  m_connections.push_back(control.Changed.ConnectScoped([this] { Show(); }));
  m_connections.push_back(m_icon.MouseUp.ConnectScoped([this](int button) { Activate(button); }));
  m_connections.push_back(StandIn().Chosen.ConnectScoped([this] { Activate(controls::kLeftButton); }));
  Show();
  m_wayBack.Follow();
}

void TrayPresenter::Activate(int button) {
  constexpr int kId = 0;
  if (const HWND asking = OpenQuestion()) {  // the user may have lost sight of it
    SetForegroundWindow(asking);
    return;
  }
  // A window that has come or gone meanwhile is what the click asked for.
  m_deferred.AfterWork([this, button, wasVisible = m_form.Visible()] {
    if (m_form.Visible() == wasVisible) m_control.MouseUp.Raise(button, kId);
  });
}

void TrayPresenter::Show() {
  StandIn().SetTip(m_control.TipText());
  m_late.Changed(m_control.Picture() == kBusyIcon);
  if (!m_control.Visible())
    m_icon.Hide();
  else if (m_shownPicture != 0)
    m_icon.Show(m_shownPicture, m_control.TipText());
}

void TrayPresenter::ShowPicture() {
  if (std::exchange(m_shownPicture, m_control.Picture()) == m_control.Picture()) return;
  StandIn().SetPicture(m_shownPicture);
  if (m_control.Visible() && m_shownPicture != 0) m_icon.Show(m_shownPicture, m_control.TipText());
}

}  // namespace dayvane::widgets
