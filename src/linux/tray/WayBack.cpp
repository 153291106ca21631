// SPDX-License-Identifier: MIT
#include "linux/tray/WayBack.h"

#include "linux/forms/ScreenFit.h"
#include "linux/widgets/Lengths.h"

namespace dayvane::widgets {

namespace {

constexpr QSize kFrameOfSmallWindow{10, 36};  ///< logical pixels, before the real one is known

}  // namespace

WayBack::WayBack(controls::Form& form, TrayWatch& tray, LauncherWatch& launcher, const QList<QAction*>& commands,
                 std::chrono::milliseconds patience)
    : m_form(form), m_tray(tray), m_launcher(launcher), m_standIn(commands) {
  m_patience.setSingleShot(true);
  m_patience.setInterval(patience);
  QObject::connect(&m_patience, &QTimer::timeout, &m_patience, [this] { Offer(); });
  m_connections.push_back(form.Changed.ConnectScoped([this] { Follow(); }));
  m_connections.push_back(tray.Changed.ConnectScoped([this] { Follow(); }));
  m_connections.push_back(launcher.Changed.ConnectScoped([this] { Follow(); }));
}

void WayBack::Follow() {
  const bool atOnce = m_wasShownWithoutTray;
  m_wasShownWithoutTray = !m_tray.IsThere() && m_form.Visible();
  if (m_tray.IsThere() || m_form.Visible() || m_form.IsUnloaded()) {
    m_isOffered = false;
    m_patience.stop();
    m_standIn.hide();
    return;
  }
  const bool launcherWent = m_isOffered && !m_standIn.isVisible() && !m_launcher.Serves();
  const bool launcherCame = m_standIn.isVisible() && m_launcher.Serves();
  if (atOnce || launcherCame) return Offer();
  // A launcher may only be starting anew, as a panel may.
  if ((!m_isOffered || launcherWent) && !m_patience.isActive()) m_patience.start();
}

void WayBack::Offer() {
  m_patience.stop();
  m_isOffered = true;
  if (m_launcher.Serves()) {
    m_standIn.hide();
    m_launcher.TellWayBack();
  } else if (!m_standIn.isVisible()) {
    ShowStandIn();
  }
}

void WayBack::ShowStandIn() {
  const QRect window = PixelRect(m_form, m_standIn);
  const QRect wanted(window.topLeft(), m_standIn.sizeHint());
  if (!window.isEmpty()) m_standIn.move(FitToScreen(wanted, AvailableScreenFor(window), kFrameOfSmallWindow).topLeft());
  m_standIn.ShowInTaskBar();
}

}  // namespace dayvane::widgets
