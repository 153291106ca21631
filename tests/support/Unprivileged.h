// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

namespace dayvane::testing {

/// Gives up root's rights while it lives, for tests of files that may not be read or written. Where the test does not
/// run as root nothing needs giving up.
class Unprivileged {
 public:
  Unprivileged() {
    if (geteuid() == 0) m_changed = seteuid(kNobody) == 0;
  }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;
  ~Unprivileged() {
    if (m_changed && seteuid(0) != 0) _exit(1);
  }

 private:
  static constexpr uid_t kNobody = 65534;
  bool m_changed = false;
};

}  // namespace dayvane::testing
