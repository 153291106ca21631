// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "platform/Shell.h"

namespace dayvane::testing {

/// Links of all kinds that the program may come to write, always the same ones for a seed.
class RandomLinks {
 public:
  enum class Characters { OfReports, All };

  explicit RandomLinks(std::uint32_t seed, Characters characters = Characters::OfReports)
      : m_random(seed), m_characters(characters) {}

  platform::ShellLink Next();

 private:
  // Not by the distributions of the standard library: each library has its own.
  std::size_t Below(std::size_t limit) { return m_random() % limit; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }

  std::string Drive() { return {static_cast<char>('A' + Below(26)), ':'}; }
  std::string Share();
  std::string Name() { return Text(OneIn(20) ? 255 : 20); }

  /// A text that is neither empty nor ends in blanks, which a report would not show.
  std::string Text(std::size_t longest);

  /// Of one script or another, in the code pages' reach and out of it; none that a report on lines cannot show.
  std::string Character();

  /// Every one but null, control characters and separators of paths among them.
  std::string AnyCharacter();

  std::mt19937 m_random;
  Characters m_characters;
};

}  // namespace dayvane::testing
