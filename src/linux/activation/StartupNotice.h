// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dayvane::activation {

/// Tells an X11 desktop that what was started with this identifier is on the screen, or it would show the user that
/// something is starting for a quarter of a minute. Nothing on other desktops and for an empty identifier.
void TellStarted(const std::string& startupId);

}  // namespace dayvane::activation
