// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "base/Error.h"

namespace dayvane {

/// What a pointer, plain or smart, points at. Fails with kObjectNotSet when it is null.
template <class Pointer>
auto& Checked(const Pointer& pointer) {
  if (pointer == nullptr) throw Error(kObjectNotSet, "Object variable not set");
  return *pointer;
}

/// Owns an object that may be missing. Using it then fails with kObjectNotSet, which the user's procedure reports.
template <class Object>
class CheckedPointer : public std::unique_ptr<Object> {
 public:
  using std::unique_ptr<Object>::unique_ptr;
  using std::unique_ptr<Object>::operator=;

  Object* operator->() const { return &Checked(this->get()); }
};

}  // namespace dayvane
