// SPDX-License-Identifier: MIT
#include "app/LogLine.h"

#include "app/Date.h"

namespace dayvane {

std::string LogTime(platform::Clock& clock) {
  return Format(Date(clock.Now()), "yyyy-mm-dd hh:nn:ss", platform::DateConventions{});
}

std::string LogField(const std::string& text) {
  std::string field;
  for (const char c : text) switch (c) {
      case '\r':
        field += "\\r";
        break;
      case '\n':
        field += "\\n";
        break;
      case '\t':
        field += "\\t";
        break;
      case '\\':
        field += "\\\\";
        break;
      default:
        field += c;
    }
  return field;
}

}  // namespace dayvane
