// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/Application.h"
#include "controls/Form.h"
#include "controls/SimpleControls.h"

namespace dayvane {

/// Shows the hourglass, and a status-bar text, for exactly as long as it lives.
class CWaitCursor {
 public:
  static constexpr const char* ClassName = "CWaitCursor";

  explicit CWaitCursor(const Application& application);
  CWaitCursor(const CWaitCursor&) = delete;
  CWaitCursor& operator=(const CWaitCursor&) = delete;
  ~CWaitCursor();

  /// Shows `message` in the status bar until the guard ends. The bar must outlive the guard.
  void SetMessage(controls::StatusBar& statusBar, const std::string& message);

 private:
  controls::Form* m_form;
  controls::MousePointer m_pointer = controls::MousePointer::Default;
  controls::StatusBar* m_statusBar = nullptr;
  std::string m_text;
};

}  // namespace dayvane
