// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The keys of tree nodes and list rows: "K" and the full path of what they stand for.
namespace dayvane::views {

inline std::string KeyOf(const std::string& path) {
  return "K" + path;
}

inline std::string PathOf(const std::string& key) {
  return key.substr(1);
}

}  // namespace dayvane::views
