// SPDX-License-Identifier: MIT
#include "linux/tray/StatusNotifierWatch.h"

#include <utility>

namespace dayvane::widgets {

namespace {

constexpr const char* kName = "org.kde.StatusNotifierWatcher";
constexpr glib::BusObject::Address kWatcher{kName, "/StatusNotifierWatcher", kName};

bool IsTrue(GVariant* answer) {
  if (answer == nullptr || !g_variant_is_of_type(answer, G_VARIANT_TYPE("(v)"))) return false;
  const glib::Variant boxed(g_variant_get_child_value(answer, 0));
  const glib::Variant value(g_variant_get_variant(boxed.get()));
  return g_variant_is_of_type(value.get(), G_VARIANT_TYPE_BOOLEAN) && g_variant_get_boolean(value.get()) != FALSE;
}

}  // namespace

StatusNotifierWatch::StatusNotifierWatch(std::function<void()> changed)
    : m_changed(std::move(changed)),
      m_watcher(kWatcher, glib::BusObject::Start::OnlyWatch,
                // Hosts come and go while their watcher stays.
                {[this] { Ask(); }, [this] { SetHasHost(false); }, [this](const char*, GVariant*) { Ask(); }}) {}

void StatusNotifierWatch::Ask() {
  m_watcher.Call("org.freedesktop.DBus.Properties", "Get",
                 g_variant_new("(ss)", kName, "IsStatusNotifierHostRegistered"),
                 [this](GVariant* answer) { SetHasHost(IsTrue(answer)); });
}

void StatusNotifierWatch::SetHasHost(bool hasHost) {
  if (m_hasHost == hasHost) return;
  m_hasHost = hasHost;
  m_changed();
}

}  // namespace dayvane::widgets
