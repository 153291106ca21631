// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <time.h>

namespace dayvane::testing {

/// While it lives, the user's local time is that of a zone such as "Europe/Berlin" or "UTC".
class LocalZone {
 public:
  explicit LocalZone(const char* name) {
    if (const char* before = std::getenv("TZ")) m_before = before;
    setenv("TZ", name, 1);
    tzset();
  }
  LocalZone(const LocalZone&) = delete;
  LocalZone& operator=(const LocalZone&) = delete;
  ~LocalZone() {
    if (m_before)
      setenv("TZ", m_before->c_str(), 1);
    else
      unsetenv("TZ");
    tzset();
  }

 private:
  std::optional<std::string> m_before;
};

}  // namespace dayvane::testing
