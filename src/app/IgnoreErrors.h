// SPDX-License-Identifier: MIT
#pragma once

#include <exception>

namespace dayvane {

/// Runs one statement with errors ignored. Returns whether it went through.
template <class Statement>
bool IgnoreErrors(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace dayvane
