// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace dayvane::testing {

/// Made-up values, the same ones on every run and every system.
class Random {
 public:
  explicit Random(unsigned seed) : m_engine(seed) {}

  /// 0 … bound - 1.
  int Below(int bound) { return static_cast<int>(m_engine() % static_cast<unsigned>(bound)); }
  unsigned UnsignedBelow(int bound) { return static_cast<unsigned>(Below(bound)); }

  char Of(std::string_view characters) {
    return characters[static_cast<std::size_t>(Below(static_cast<int>(characters.size())))];
  }

  /// Up to `longest` of these characters.
  std::string Text(std::string_view characters, int longest) {
    std::string text;
    for (int left = Below(longest + 1); left > 0; --left) text += Of(characters);
    return text;
  }

 private:
  std::mt19937 m_engine;
};

}  // namespace dayvane::testing
