// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "app/Application.h"

namespace dayvane {

/// Links that are read at most in a search; more are not worth the wait.
inline constexpr std::size_t kMostLinksSearched = 10'000;

/// The newest day's filed link to a document, found by the document's full path without regard to case, in the
/// repository of that root. Empty when there is none among the newest `most` links.
std::string NewestLinkTo(Application& application, const std::string& dailyPath, const std::string& document,
                         std::size_t most = kMostLinksSearched);

}  // namespace dayvane
