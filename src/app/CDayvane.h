// SPDX-License-Identifier: MIT
#pragma once

namespace dayvane {

/// The application class: its name alone.
class CDayvane {
 public:
  static constexpr const char* ClassName = "CDayvane";
};

}  // namespace dayvane
