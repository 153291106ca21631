// SPDX-License-Identifier: MIT
#include "app/LogLine.h"

#include "app/Date.h"

namespace dayvane {

std::string LogTime(platform::Clock& clock) {
  return Format(Date(clock.Now()), "yyyy-mm-dd hh:nn:ss", platform::DateConventions{});
}

std::string LogField(const std::string& text) {
  constexpr std::string_view kSpecial = "\r\n\t\\";
  constexpr std::string_view kLetters = "rnt\\";
  std::string field;
  for (const char c : text) {
    const auto special = kSpecial.find(c);
    if (special == kSpecial.npos)
      field += c;
    else
      field += {'\\', kLetters[special]};
  }
  return field;
}

}  // namespace dayvane
