// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dayvane {

class EventLogWriter;

/// Logs preconditions that do not hold. One for the whole process; a failed assertion never stops its caller.
class CAssert {
 public:
  static constexpr const char* ClassName = "CAssert";

  /// The log must outlive this object.
  explicit CAssert(EventLogWriter& eventLog) : m_eventLog(eventLog) {}

  void Assert(bool condition, const std::string& message) const;

 private:
  EventLogWriter& m_eventLog;
};

}  // namespace dayvane
