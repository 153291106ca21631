// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/EventLogWriter.h"

namespace dayvane {

/// Logs preconditions that do not hold. One for the whole process; a failed assertion never stops its caller.
class CAssert {
 public:
  static constexpr const char* ClassName = "CAssert";

  /// The log must outlive this object.
  explicit CAssert(EventLogWriter& eventLog) : m_eventLog(eventLog) {}

  void Assert(bool condition, const std::string& message) const {
    if (!condition) m_eventLog.Append(message, EventKind::Assertion);
  }

 private:
  EventLogWriter& m_eventLog;
};

}  // namespace dayvane
