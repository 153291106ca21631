// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dayvane::platform {

// Commands of the classic help API, with its values.
inline constexpr int kHelpContext = 1;       ///< HELP_CONTEXT: the topic of a context id
inline constexpr int kHelpContextPopup = 8;  ///< HELP_CONTEXTPOPUP: the same in a small window at the mouse
inline constexpr int kHelpFinder = 11;       ///< HELP_FINDER: the table of contents; the context id means nothing

/// The desktop's help viewer.
class Help {
 public:
  virtual ~Help() = default;

  /// Shows a help file and returns at once. A file that is missing or damaged is reported by the viewer to the user,
  /// not to the caller.
  virtual void ShowHelp(const std::string& helpFile, int command, int contextId) = 0;
};

}  // namespace dayvane::platform
