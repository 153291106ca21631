// SPDX-License-Identifier: MIT
#include "app/ErrorReporter.h"

#include <utility>

#include "app/IgnoreErrors.h"
#include "app/LogLine.h"

namespace dayvane {

ErrorReporter::ErrorReporter(platform::FileSystem& files, platform::Clock& clock, platform::Windowing& windowing,
                             std::string path)
    : m_files(files), m_clock(clock), m_windowing(windowing), m_path(std::move(path)) {}

void ErrorReporter::SetError(int number, std::string description) {
  m_number = number;
  m_description = std::move(description);
}

void ErrorReporter::Report() {
  const std::string message = m_userMessage + m_text;
  const std::string line = LogTime(m_clock) + "\t" + LogField(m_source) + "\t" + std::to_string(m_number) + "\t" +
                           LogField(m_description) + "\t" + LogField(message) + "\n";
  IgnoreErrors([&] { m_files.Append(m_path, line); });
  IgnoreErrors([&] { m_windowing.ShowMessage({message, m_title}); });
}

}  // namespace dayvane
