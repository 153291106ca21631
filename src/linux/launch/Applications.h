// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "linux/glib/GlibHandles.h"

/// The applications installed on this desktop.
namespace dayvane::applications {

/// Native path of the program that an application starts: for "env NAME=value program" the program, for a sandboxed
/// application the command that its packaging system exports for it. Nothing where there is no such file.
std::optional<std::string> ProgramOf(GAppInfo* application);

/// The installed applications by the programs that they start. Gone through when first asked, which takes a while, and
/// again when the desktop has reported a change, which it does while the GLib main loop runs.
class ProgramIndex {
 public:
  ProgramIndex();
  ProgramIndex(const ProgramIndex&) = delete;
  ProgramIndex& operator=(const ProgramIndex&) = delete;
  ~ProgramIndex();

  /// The application that starts the program, by the program's native path; the one that does so in the fewest words
  /// when there are several. Null when the file is no application's program. Good until the next call.
  GAppInfo* Find(const std::string& program);

  /// Whether an application's program has this file name, whatever its letter case.
  bool HasName(const std::string& fileName);

 private:
  static void Changed(GAppInfoMonitor* monitor, gpointer self);
  void Fill();

  glib::Object<GAppInfoMonitor> m_monitor;
  gulong m_connection;
  bool m_isFilled = false;
  std::unordered_map<std::string, glib::Object<GAppInfo>> m_applications;  ///< by program
  std::unordered_set<std::string> m_names;                                 ///< of programs, in small letters
};

/// The same for a single question.
glib::Object<GAppInfo> FindByProgram(const std::string& program);

}  // namespace dayvane::applications
