// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace dayvane::testing {

/// What the action answers in a process of its own in which no look at a file succeeds any more: "Input/output error",
/// as of a disk that does not answer. False also when the action throws.
bool OnABrokenDisk(const std::function<bool()>& action);

}  // namespace dayvane::testing
