// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace dayvane::fuzzing {

/// What a fuzz target does with one input; each target defines it.
void Try(std::string_view bytes);

/// A property that must hold whatever the input is. One that does not ends the process, so that the input is kept.
void Require(bool holds, const char* property);

}  // namespace dayvane::fuzzing
