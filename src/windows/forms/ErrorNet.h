// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <set>
#include <string>

#include "resources/StringTable.h"

namespace dayvane::widgets {

/// The last net below the program: what the handler of a message lets escape is reported, and the program goes on. What
/// a person caused is reported every time; what the desktop causes, such as painting, may fail again and again: the
/// same error is reported once.
///
/// One net for the process, for as long as it lives. Without one an error is ignored.
class ErrorNet {
 public:
  /// Reports the error that is being handled: "An error occurred " and the phrase.
  using Report = std::function<void(StringId phrase)>;

  /// `giveUp` is called when even the report fails.
  ErrorNet(Report report, std::function<void()> giveUp);
  ErrorNet(const ErrorNet&) = delete;
  ErrorNet& operator=(const ErrorNet&) = delete;
  ~ErrorNet();

 private:
  void Catch() noexcept;
  void ReportOnce();

  Report m_report;
  std::function<void()> m_giveUp;
  std::set<std::string> m_told;
  bool m_reporting = false;
};

}  // namespace dayvane::widgets
