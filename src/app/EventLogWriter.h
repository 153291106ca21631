// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/Clock.h"
#include "platform/FileSystem.h"

namespace dayvane {

/// Kinds of an event-log entry.
enum class EventKind : int {
  Information = 1,  ///< something the user may want to know of
  Assertion = 2,    ///< a precondition that did not hold
  Warning = 3,      ///< something from outside that could not be used as it was
};

/// Appends to "EventLog.txt": UTF-8, one line an entry,
///
///     2026-11-21 14:03:27<TAB>2<TAB>FMain.GetShortcuts: Recent folder is missing
///
/// that is local date and time, kind, text.
/// A failure to write is ignored: there is no one left to tell.
class EventLogWriter {
 public:
  EventLogWriter(platform::FileSystem& files, platform::Clock& clock, std::string path)
      : m_files(files), m_clock(clock), m_path(std::move(path)) {}

  void Append(const std::string& text, EventKind kind);

 private:
  platform::FileSystem& m_files;
  platform::Clock& m_clock;
  std::string m_path;
};

}  // namespace dayvane
