// SPDX-License-Identifier: MIT
#include "windows/widgets/Guard.h"

#include <utility>

namespace dayvane::widgets {

namespace {

std::function<void()>& StrayErrorReport() {
  static std::function<void()> report;
  return report;
}

}  // namespace

void SetStrayErrorReport(std::function<void()> report) {
  StrayErrorReport() = std::move(report);
}

void ReportStrayError() noexcept {
  try {
    if (StrayErrorReport()) StrayErrorReport()();
  } catch (...) {  // NOLINT(bugprone-empty-catch): a report that fails cannot be reported
  }
}

}  // namespace dayvane::widgets
