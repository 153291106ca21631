// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/linux/BusService.h"

namespace dayvane::testing {

/// A file manager on the bus that shows nothing and remembers what it was asked for.
class FakeFileManager {
 public:
  explicit FakeFileManager(const PrivateBus& bus);

  void FailFromNowOn() { m_fails = true; }
  int Asked() const { return m_asked; }
  const std::vector<std::string>& Shown() const { return m_shown; }  ///< addresses of folders

 private:
  void ShowFolders(GVariant* arguments, GDBusMethodInvocation* call);

  std::vector<std::string> m_shown;
  int m_asked = 0;
  bool m_fails = false;
  BusService m_service;
};

}  // namespace dayvane::testing
