// SPDX-License-Identifier: MIT
#include "linux/recent/RecentListWatch.h"

#include <chrono>
#include <utility>

#include "linux/glib/ErrorNet.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::recent {

namespace {

/// A program writes the list in several steps, and one opening often means several writes.
constexpr std::chrono::milliseconds kDelay{300};

}  // namespace

void RecentListWatch::CancelAndRelease::operator()(GFileMonitor* monitor) const {
  g_file_monitor_cancel(monitor);
  g_object_unref(monitor);
}

RecentListWatch::RecentListWatch(const std::string& listPath, std::function<void()> changed) {
  m_delay.setSingleShot(true);
  m_delay.setInterval(kDelay);
  QObject::connect(&m_delay, &QTimer::timeout, &m_delay, std::move(changed));
  const glib::Object<GFile> list(g_file_new_for_path(listPath.c_str()));
  m_monitor.reset(g_file_monitor_file(list.get(), G_FILE_MONITOR_NONE, nullptr, nullptr));
  if (m_monitor) g_signal_connect(m_monitor.get(), "changed", G_CALLBACK(OnEvent), this);
}

RecentListWatch::~RecentListWatch() {
  if (m_monitor) g_signal_handlers_disconnect_by_data(m_monitor.get(), this);
}

void RecentListWatch::OnEvent(GFileMonitor*, GFile*, GFile*, GFileMonitorEvent, gpointer watch) {
  // A running delay is not restarted: under constant writing it would never end.
  CatchErrors(kCheckingForDocuments, [watch] {
    QTimer& delay = static_cast<RecentListWatch*>(watch)->m_delay;
    if (!delay.isActive()) delay.start();
  });
}

}  // namespace dayvane::recent
