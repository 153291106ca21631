// SPDX-License-Identifier: MIT
#include <clocale>
#include <cwctype>
#include <gtest/gtest.h>

#include "base/CaseMapping.h"

namespace dayvane::text {
namespace {

/// The system's own table, which may be of a later Unicode: pairs are never changed there, only added.
TEST(CaseMappingOfTheSystem, SaysTheSameOfEveryCharacterThatIsMapped) {
  const locale_t system = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  ASSERT_NE(system, nullptr);
  for (char32_t c = 0; c <= 0x10FFFF; ++c) {
    const auto systems = static_cast<wint_t>(c);
    EXPECT_TRUE(SimpleUpper(c) == c || SimpleUpper(c) == towupper_l(systems, system)) << systems;
    EXPECT_TRUE(SimpleLower(c) == c || SimpleLower(c) == towlower_l(systems, system)) << systems;
  }
  freelocale(system);
}

}  // namespace
}  // namespace dayvane::text
