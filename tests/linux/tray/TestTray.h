// SPDX-License-Identifier: MIT
#pragma once

#include "linux/tray/LauncherWatch.h"
#include "linux/tray/TrayWatch.h"

namespace dayvane::testing {

/// A desktop whose launcher brings windows back when the test says so.
class TestLauncher : public widgets::LauncherWatch {
 public:
  bool Serves() const override { return m_serves; }
  void TellWayBack() override { ++told; }
  void Set(bool serves) {
    m_serves = serves;
    Changed.Raise();
  }

  int told = 0;  ///< how often it was told, whether or not for the first time

 private:
  bool m_serves = false;
};

/// A desktop that has a tray when the test says so.
class TestTray : public widgets::TrayWatch {
 public:
  bool IsThere() const override { return m_isThere; }
  void Set(bool isThere) {
    m_isThere = isThere;
    Changed.Raise();
  }

 private:
  bool m_isThere = false;
};

}  // namespace dayvane::testing
