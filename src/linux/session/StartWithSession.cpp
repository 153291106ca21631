// SPDX-License-Identifier: MIT
#include "linux/session/StartWithSession.h"

#include <utility>

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"

namespace dayvane::session {

namespace {

constexpr const char* kSwitch = "start-with-session";

}  // namespace

StartWithSession::StartWithSession(activation::BusApplication& bus, activation::Activation& activation,
                                   Autostart autostart)
    : m_bus(bus), m_autostart(std::move(autostart)) {
  activation.Offer("start-with-session-on", [this] { Set(true); });
  activation.Offer("start-with-session-off", [this] { Set(false); });
  activation.OfferSwitch(kSwitch, IsOn(), [this](bool wanted) { Set(wanted); });
}

bool StartWithSession::IsOn() const {
  bool isOn = false;
  IgnoreErrors([&] { isOn = m_autostart.IsOn(); });
  return isOn;
}

void StartWithSession::Serve(Application& application) {
  m_application = &application;
  // A start by the session should not meet a box for this.
  if (!IgnoreErrors([this] { m_autostart.TakeOverOldNames(); }))
    application.eventLog.Append("An autostart entry of an old name could not be replaced", EventKind::Warning);
  m_bus.SetSwitch(kSwitch, IsOn());
}

void StartWithSession::Set(bool isOn) {
  const bool isDone = ReportErrors(*m_application, kSettingOptions, "StartWithSession", "Set",
                                   [&] { isOn ? m_autostart.TurnOn() : m_autostart.TurnOff(); });
  m_bus.SetSwitch(kSwitch, IsOn());
  if (!isDone) return;
  m_bus.Notify(
      isOn ? "Dayvane starts with your session" : "Dayvane does not start with your session",
      isOn ? "Your documents are on record from login on." : "Start it yourself to have your documents on record.");
}

}  // namespace dayvane::session
