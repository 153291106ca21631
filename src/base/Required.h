// SPDX-License-Identifier: MIT
#pragma once

#include "base/Error.h"

namespace dayvane {

/// What a pointer, plain or smart, points at. Fails with kObjectNotSet when that is nothing.
template <class Pointer>
auto& Required(const Pointer& pointer) {
  if (pointer == nullptr) throw Error(kObjectNotSet, "Object variable not set");
  return *pointer;
}

}  // namespace dayvane
