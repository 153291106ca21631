// SPDX-License-Identifier: MIT
#include "linux/tray/DesktopTrayWatch.h"

#include <QByteArray>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace dayvane::widgets {

namespace {

// The X server sends no word of a tray that appears later, so it is asked again and again.
constexpr int kCheckMilliseconds = 2000;
constexpr int kFirstCheckMilliseconds = 300;  ///< by then the session bus has answered

struct Free {
  // What the X library gives comes from malloc.
  void operator()(void* memory) const { std::free(memory); }  // NOLINT(cppcoreguidelines-no-malloc)
};

/// Whether a tray of the system tray protocol owns the selection of the first screen.
bool HasEmbeddingTray() {
  const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr) return false;
  xcb_connection_t* connection = x11->connection();
  if (connection == nullptr) return false;  // the platform without a screen has the interface and nothing behind it
  const QByteArray name = "_NET_SYSTEM_TRAY_S0";
  const std::unique_ptr<xcb_intern_atom_reply_t, Free> atom(xcb_intern_atom_reply(
      connection, xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.constData()), nullptr));
  if (atom == nullptr) return false;
  const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> owner(
      xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
  return owner != nullptr && owner->owner != XCB_NONE;
}

}  // namespace

DesktopTrayWatch::DesktopTrayWatch() : m_notifiers([this] { Check(); }) {
  QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Check(); });
  m_timer.start(kCheckMilliseconds);
  QTimer::singleShot(kFirstCheckMilliseconds, &m_timer, [this] { Check(); });
}

bool DesktopTrayWatch::IsThere(Kind kind) const {
  return kind == Kind::StatusNotifier ? m_notifiers.HasHost() : HasEmbeddingTray();
}

void DesktopTrayWatch::Check() {
  // A desktop that has both is served as Qt serves it: with status notifiers.
  if (!m_kind && IsThere(Kind::StatusNotifier)) m_kind = Kind::StatusNotifier;
  if (!m_kind && IsThere(Kind::Embedding)) m_kind = Kind::Embedding;
  const bool isThere = m_kind && IsThere(*m_kind);
  if (isThere == m_isThere) return;
  m_isThere = isThere;
  Changed.Raise();
}

}  // namespace dayvane::widgets
