// SPDX-License-Identifier: MIT
#pragma once

#include "app/Application.h"
#include "controls/Form.h"
#include "controls/SimpleControls.h"

namespace dayvane {

/// The window that shows the product's identity while the program starts. Any click or key press closes it.
class FSplash {
 public:
  static constexpr const char* kName = "FSplash";

  explicit FSplash(const ProgramInfo& info);

  /// Shows the window and returns at once.
  void Show() { form.SetVisible(true); }

  void Unload() { form.RequestUnload(controls::UnloadMode::Code); }

  /// What a click anywhere on the window does.
  void Click() { Unload(); }

  controls::Form form;
  controls::Image imgLogo;
  controls::Label lblProductName;
  controls::Label lblVersion;
  controls::Label lblCompany;
  controls::Label lblCopyright;
  controls::Label lblWarning;

 private:
  void Form_Load(const ProgramInfo& info);
};

}  // namespace dayvane
