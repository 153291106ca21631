// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "app/Application.h"
#include "base/CheckedPointer.h"

namespace dayvane {

/// Base of the classes whose assertions carry the name of the class.
class Asserting {
 protected:
  /// The name is a constant of the class; both must outlive this object.
  Asserting(const Application& application, std::string_view className)
      : m_asserts(application.asserts), m_className(className) {}

  /// Logs the class's name and the message (".SetFile: Path is missing") unless the condition holds.
  void Assert(bool condition, std::string_view message) const {
    if (!condition) m_asserts.Assert(false, std::string(m_className).append(message));
  }

  /// What a pointer, plain or smart, points at. When it is null the assertion fails, and then the caller with
  /// kObjectNotSet.
  template <class Pointer>
  auto& Demand(const Pointer& pointer, std::string_view message) const {
    Assert(pointer != nullptr, message);
    return Checked(pointer);
  }

 private:
  const CAssert& m_asserts;
  std::string_view m_className;
};

}  // namespace dayvane
