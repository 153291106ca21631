// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "app/EventLogWriter.h"

namespace dayvane {

/// Takes what the desktop's parts have to tell the event log from before there is one: such texts wait for it.
class EventSink {
 public:
  void Report(const std::string& text) {
    if (m_log == nullptr)
      m_waiting.push_back(text);
    else
      m_log->Append(text, EventKind::Warning);
  }

  /// From now on texts go to this log; nullptr when it is about to go.
  void SetLog(EventLogWriter* log) {
    m_log = log;
    if (log == nullptr) return;
    for (const std::string& text : m_waiting) log->Append(text, EventKind::Warning);
    m_waiting.clear();
  }

 private:
  EventLogWriter* m_log = nullptr;
  std::vector<std::string> m_waiting;
};

}  // namespace dayvane
