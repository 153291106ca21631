// SPDX-License-Identifier: MIT
#pragma once

/// Unicode's simple case mappings, in which one character becomes one: the same answer on every system and for every
/// user. The identity of records, their order and the names of folders stand on it.
namespace dayvane::text {

char32_t SimpleUpper(char32_t character);
char32_t SimpleLower(char32_t character);

}  // namespace dayvane::text
