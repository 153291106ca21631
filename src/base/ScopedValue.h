// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace dayvane {

/// Gives a variable another value for as long as this lives, also when an error ends that.
template <class Value>
class ScopedValue {
 public:
  ScopedValue(Value& variable, Value value) : m_variable(variable), m_before(std::exchange(variable, value)) {}
  ScopedValue(const ScopedValue&) = delete;
  ScopedValue& operator=(const ScopedValue&) = delete;
  ~ScopedValue() { m_variable = m_before; }

 private:
  Value& m_variable;
  Value m_before;
};

}  // namespace dayvane
