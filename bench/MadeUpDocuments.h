// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// The documents that the benchmarks of every desktop are about. There are none of these names.
namespace dayvane {

/// "Document number 7.odt.lnk"
std::string ShortcutName(std::int64_t document);

/// The bytes of the shortcut to a document, which lies in one of a hundred folders.
std::string LinkBytes(std::int64_t document);

}  // namespace dayvane
