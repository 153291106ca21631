// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/DateConventions.h"
#include "platform/Registry.h"

namespace dayvane::settings {

/// The month names of every language that the record was ever kept in, the oldest first; those of the user's language
/// are remembered from now on. A change of language renames no folder, so the program has to know the old names.
///
/// They are in a subtree of their own, "Month Names": values "1", "2", … in the order in which the languages came, each
/// with twelve names and "/" between them, which cannot be part of a folder's name.
///
/// Nothing here fails. What cannot be stored is remembered for this run only.
std::vector<platform::MonthNames> RememberMonthNames(platform::Registry& registry, const platform::MonthNames& users);

}  // namespace dayvane::settings
