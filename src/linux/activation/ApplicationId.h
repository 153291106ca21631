// SPDX-License-Identifier: MIT
#pragma once

namespace dayvane::activation {

/// The program's name on the session bus, which is also that of its menu entry: launchers find the one by the other.
inline constexpr const char* kApplicationId = "example.dayvane.Dayvane";

}  // namespace dayvane::activation
