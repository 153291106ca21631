// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <gio/gio.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "linux/LinuxClock.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::registry {

/// One key of the document classes with its default value, if there is such a key.
struct ClassKeyAnswer {
  std::string path;
  std::optional<std::string> text;
};

/// The desktop's content types and default applications in the form of a registry of document classes:
///
///     .ODT                               application/vnd.oasis.opendocument.text
///     <class>                            OpenDocument Text
///     <class>\DefaultIcon                application-vnd.oasis.opendocument.text,0
///     <class>\shell\open\command         "Z:\usr\bin\libreoffice" "%1"
///
/// The name of a class is its content type, its icon a name in the icon theme. Every answer comes from names alone: no
/// document is looked at, because its disk may be asleep.
///
/// A poll asks four such questions for each of thousands of shortcuts, so answers are kept: until the desktop reports
/// that its applications have changed, and for a minute at most, since changed content types are not reported.
class DocumentClasses {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;
  static constexpr std::chrono::seconds kLongestKept{60};

  /// The program that last opened a document of a content type, by any name; nothing when nobody knows.
  using LastProgram = std::function<std::optional<std::string>(const std::string& type)>;

  /// Reading an exact clock would be half of the work of an answer that is known.
  explicit DocumentClasses(Clock clock = LinuxClock::CoarseTime);
  DocumentClasses(const DocumentClasses&) = delete;
  DocumentClasses& operator=(const DocumentClasses&) = delete;
  ~DocumentClasses();

  /// Where nobody has chosen the application for a class, the one that was last used for it is taken (see
  /// DefaultApplication.h).
  void AskForPrograms(LastProgram lastProgram) { m_lastProgram = std::move(lastProgram); }

  /// The default value of a key, by its path below the root. Never null.
  std::shared_ptr<const ClassKeyAnswer> Find(std::string_view path);

 private:
  static void ApplicationsChanged(GAppInfoMonitor* monitor, gpointer self);

  Clock m_clock;
  LastProgram m_lastProgram;
  glib::Object<GAppInfoMonitor> m_monitor;
  gulong m_connection;
  std::unordered_map<std::string_view, std::shared_ptr<const ClassKeyAnswer>> m_answers;  ///< by the path inside
  std::chrono::steady_clock::time_point m_keptSince;
};

}  // namespace dayvane::registry
