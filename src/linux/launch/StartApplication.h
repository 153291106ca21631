// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <string>

#include "base/ReportEvent.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::launch {

/// The user's message bus, or nothing. Losing it does not end the program, as GIO would otherwise have it.
glib::Object<GDBusConnection> SessionBus();

/// Starts an application without waiting for it, with one address to open, or with nothing when `uri` is empty. The
/// application runs in the working folder where there is such a folder, unless it brings its own.
///
/// An application that is started over the message bus answers later: its failure is reported, unless `pending` has
/// been cancelled by then. Returns whether the start succeeded as far as that is known.
bool StartApplication(GAppInfo* application, const std::string& uri, const std::string& workingFolder,
                      GCancellable* pending, const ReportEvent& reportEvent);

}  // namespace dayvane::launch
