// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <optional>
#include <string>

#include "linux/glib/GlibHandles.h"

namespace dayvane::registry {

/// The application for documents of a content type; null when there is none.
///
/// It is the one that the user or the desktop has chosen in a "mimeapps.list"
/// (https://specifications.freedesktop.org/mime-apps-spec/latest/). Where nobody has, GIO gives the first by name of
/// all that claim the type, which the user may never have started: then it is the one of them that last opened such a
/// document, if that is known by its name, its command or the name of its entry.
glib::Object<GAppInfo> ApplicationFor(const std::string& type, const std::optional<std::string>& lastProgram);

}  // namespace dayvane::registry
