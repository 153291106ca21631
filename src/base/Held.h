// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "base/Required.h"

namespace dayvane {

/// Owns an object that may be missing. Using it then fails with kObjectNotSet, which the user's procedure reports.
template <class Object>
class Held : public std::unique_ptr<Object> {
 public:
  using std::unique_ptr<Object>::unique_ptr;
  using std::unique_ptr<Object>::operator=;

  Object* operator->() const { return &Required(this->get()); }
};

}  // namespace dayvane
