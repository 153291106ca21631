// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace dayvane {

/// Takes a text for the event log. Parts that are made before there is a log, or that may not know it, are handed one.
using ReportEvent = std::function<void(const std::string& event)>;

}  // namespace dayvane
