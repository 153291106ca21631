// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace dayvane::links {

/// "X:\" and what may follow it.
inline bool IsDrivePath(std::string_view path) {
  if (path.size() < 3) return false;
  const int letter = path[0] | 0x20;
  return letter >= 'a' && letter <= 'z' && path[1] == ':' && path[2] == '\\';
}

/// Length of "\\server\share" at the start of a path, or 0 when the path does not start so.
inline std::size_t ShareLength(std::string_view path) {
  if (!path.starts_with("\\\\")) return 0;
  const std::size_t serverEnd = path.find('\\', 2);
  if (serverEnd == 2 || serverEnd == std::string_view::npos) return 0;
  const std::size_t shareEnd = path.find('\\', serverEnd + 1);
  const std::size_t length = shareEnd == std::string_view::npos ? path.size() : shareEnd;
  return length == serverEnd + 1 ? 0 : length;
}

}  // namespace dayvane::links
