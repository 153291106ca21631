// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Signal.h"

namespace dayvane::controls {

/// A control whose rows or nodes change in bulk. Presenters hear ContentsWillChange before the first change and
/// ContentsChanged after the last, once for a whole scope of changes.
class UpdateTarget {
 public:
  Signal<> ContentsWillChange;
  Signal<> ContentsChanged;

 private:
  friend class UpdateScope;
  int m_depth = 0;
};

/// Holds the changes made while it lives together as one.
class UpdateScope {
 public:
  explicit UpdateScope(UpdateTarget& target) : m_target(target) {
    if (m_target.m_depth++ == 0) m_target.ContentsWillChange.Raise();
  }
  UpdateScope(const UpdateScope&) = delete;
  UpdateScope& operator=(const UpdateScope&) = delete;
  ~UpdateScope() {
    if (--m_target.m_depth == 0) m_target.ContentsChanged.Raise();
  }

 private:
  UpdateTarget& m_target;
};

}  // namespace dayvane::controls
