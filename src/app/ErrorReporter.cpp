// SPDX-License-Identifier: MIT
#include "app/ErrorReporter.h"

#include "app/IgnoreErrors.h"
#include "app/LogLine.h"

namespace dayvane {

void ErrorReporter::Report() {
  const std::string message = m_userMessage + m_text;
  const std::string line = LogTime(m_clock) + "\t" + LogField(m_source) + "\t" + std::to_string(m_number) + "\t" +
                           LogField(m_description) + "\t" + LogField(message) + "\n";
  IgnoreErrors([&] { m_files.Append(m_path, line); });
  IgnoreErrors([&] { m_windowing.ShowMessage({message, m_title}); });
}

}  // namespace dayvane
