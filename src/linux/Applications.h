#pragma once

#include <gio/gio.h>
#include <optional>
#include <string>

#include "linux/GlibHandles.h"

/// The applications installed on this desktop.
namespace dayvane::applications {

/// Native path of the program that an application starts: for "env NAME=value program" the program, for a sandboxed
/// application the command that its packaging system exports for it. Nothing where there is no such file.
std::optional<std::string> ProgramOf(GAppInfo* application);

/// The installed application that starts the program, by the program's native path; the one that does so in the
/// fewest words when there are several. Null when the file is no application's program.
glib::Object<GAppInfo> FindByProgram(const std::string& program);

}  // namespace dayvane::applications
