// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace dayvane::recent {

/// FNV-1a in 64 bits. Sources keep such hashes from one session to the next, so it must never change.
inline std::uint64_t StableHash(std::string_view text) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return hash;
}

}  // namespace dayvane::recent
