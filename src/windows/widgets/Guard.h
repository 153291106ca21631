// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace dayvane::widgets {

/// What becomes of an error that no handler of the program's caught: it is reported while it is being handled (`throw;`
/// throws it again). No error may leave a window's procedure, which the system called. Without one it is ignored.
void SetStrayErrorReport(std::function<void()> report);

/// For a handler that catches everything: reports the error being handled.
void ReportStrayError() noexcept;

/// Does what a procedure that the system called has to do, and no error leaves it.
template <class Act, class Result>
Result Guarded(Act&& act, Result otherwise) noexcept {
  try {
    return act();
  } catch (...) {
    ReportStrayError();
    return otherwise;
  }
}

}  // namespace dayvane::widgets
