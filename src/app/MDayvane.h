// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/Application.h"
#include "app/Date.h"

namespace dayvane {

/// The date, at midnight, of a day folder's path such as …\Daily\1998\January\05, or of a tree key made of it. The
/// month may be of any language that the record was ever kept in. Fails with kTypeMismatch when the last three parts of
/// the path do not form a date.
Date PathToDate(const Application& application, const std::string& path);

}  // namespace dayvane
