// SPDX-License-Identifier: MIT
#include "app/CAssert.h"

#include "app/EventLogWriter.h"

namespace dayvane {

void CAssert::Assert(bool condition, const std::string& message) const {
  if (!condition) m_eventLog.Append(message, EventKind::Assertion);
}

}  // namespace dayvane
