// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "shell/FMain.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::testing {

/// What ends a run without a word, wherever the program is. Nothing in the program may catch it.
struct Killed {};

/// A user's computer on which the program is started, used, ended and killed, time after time, over the same disk and
/// settings. The threshold is one day, so that all documents are favorites.
class ProgramRuns {
 public:
  ProgramRuns();

  void Start();  ///< may throw Killed
  void Exit();   ///< the session's end; may throw Killed
  void Kill();   ///< between two changes of the disk

  /// Takes back what desktop.files.beforeChange was made to do.
  void LetLive();

  bool IsRunning() const { return m_window != nullptr; }
  FMain& Window() { return *m_window; }

  std::string NativeFile(const std::string& name) const { return desktop.NativeFolder() + "/" + name; }

  TestDesktop desktop;

 private:
  std::unique_ptr<Application> m_application;
  std::unique_ptr<CRepository> m_repository;
  std::unique_ptr<FMain> m_window;
};

}  // namespace dayvane::testing
