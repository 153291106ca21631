// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

namespace dayvane::testing {

/// While it lives, a variable of this process's environment has another value.
class EnvironmentVariable {
 public:
  EnvironmentVariable(std::string name, const std::string& value) : m_name(std::move(name)) {
    if (const char* before = std::getenv(m_name.c_str())) m_before = before;
    setenv(m_name.c_str(), value.c_str(), 1);
  }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
  ~EnvironmentVariable() {
    if (m_before)
      setenv(m_name.c_str(), m_before->c_str(), 1);
    else
      unsetenv(m_name.c_str());
  }

 private:
  std::string m_name;
  std::optional<std::string> m_before;
};

}  // namespace dayvane::testing
