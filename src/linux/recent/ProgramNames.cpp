// SPDX-License-Identifier: MIT
#include "linux/recent/ProgramNames.h"

#include <algorithm>
#include <vector>

#include "base/Text.h"

namespace dayvane::recent {

namespace {

/// Whether the name is an id like "org.kde.okular": three parts or more, none of them empty, no blanks.
bool IsProgramId(std::string_view name) {
  const auto parts = text::Split(name, '.');
  const auto isEmpty = [](std::string_view part) { return part.empty(); };
  return parts.size() >= 3 && std::ranges::none_of(parts, isEmpty) && name.find(' ') == std::string_view::npos;
}

}  // namespace

std::string PlainProgramName(std::string_view name) {
  constexpr std::string_view kMenuEntry = ".desktop";
  if (name.ends_with(kMenuEntry)) name.remove_suffix(kMenuEntry.size());
  const auto part = name.find("Application_");
  if (part != std::string_view::npos && part > 0) name = name.substr(0, part);
  if (IsProgramId(name)) name.remove_prefix(name.rfind('.') + 1);
  return text::ToLower(name);
}

bool IsSameProgram(std::string_view name, std::string_view otherName) {
  if (name.empty() || otherName.empty()) return false;
  return name == otherName || PlainProgramName(name) == PlainProgramName(otherName);
}

}  // namespace dayvane::recent
