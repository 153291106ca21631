// SPDX-License-Identifier: MIT
#include "linux/activation/GnomeShell.h"

#include <gio/gdesktopappinfo.h>
#include <utility>

#include "app/IgnoreErrors.h"
#include "linux/activation/ApplicationId.h"
#include "settings/SettingsStore.h"

namespace dayvane::activation {

namespace {

constexpr glib::BusObject::Address kShell{"org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell"};
constexpr const char* kSubtree = "Hints";
constexpr const char* kWayBack = "Way Back";

/// Whether the desktop finds the menu entry. It does not when the program was started from anywhere but an
/// installation.
bool HasMenuEntry() {
  const std::string entry = std::string(kApplicationId) + ".desktop";
  return glib::Object<GDesktopAppInfo>(g_desktop_app_info_new(entry.c_str())) != nullptr;
}

}  // namespace

GnomeShell::GnomeShell(BusApplication& bus, platform::Registry& registry)
    : m_bus(bus),
      m_registry(registry),
      m_shell(kShell, glib::BusObject::Start::OnlyWatch,
              {[this] { SetRunning(true); }, [this] { SetRunning(false); }, [](const char*, GVariant*) {}}) {}

bool GnomeShell::Serves() const {
  return m_isRunning && m_bus.IsOnBus() && HasMenuEntry();
}

void GnomeShell::TellWayBack() {
  if (std::exchange(m_wasTold, true) || WasTold()) return;
  m_bus.Notify("Dayvane goes on recording",
               "Its window is hidden. Click its icon among your applications to see it again.");
}

void GnomeShell::SetRunning(bool isRunning) {
  if (std::exchange(m_isRunning, isRunning) != isRunning) Changed.Raise();
}

bool GnomeShell::WasTold() {
  bool wasTold = false;
  IgnoreErrors([&] {
    constexpr std::size_t kFirst = 0;
    wasTold = settings::Subtree(m_registry, kSubtree, {{kWayBack, settings::FlagText(false)}}).Flag(kFirst);
    settings::OpenSubtree(m_registry, kSubtree)->SetValue(kWayBack, settings::FlagText(true));
  });
  return wasTold;
}

}  // namespace dayvane::activation
