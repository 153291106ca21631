// SPDX-License-Identifier: MIT
#include "app/EventLogWriter.h"

#include "app/IgnoreErrors.h"
#include "app/LogLine.h"

namespace dayvane {

void EventLogWriter::Append(const std::string& text, EventKind kind) {
  const std::string line = LogTime(m_clock) + "\t" + std::to_string(static_cast<int>(kind)) + "\t" + LogField(text);
  IgnoreErrors([&] { m_files.Append(m_path, line + "\n"); });
}

}  // namespace dayvane
