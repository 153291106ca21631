// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <unistd.h>

namespace dayvane::testing {

/// While it lives, the process has no more rights on the disk than the system's "nobody": a test that runs as root
/// would otherwise be let in everywhere.
class UnprivilegedUser {
 public:
  UnprivilegedUser() {
    if (geteuid() == 0 && (setegid(kNobody) != 0 || seteuid(kNobody) != 0)) throw std::runtime_error("still root");
  }
  UnprivilegedUser(const UnprivilegedUser&) = delete;
  UnprivilegedUser& operator=(const UnprivilegedUser&) = delete;
  ~UnprivilegedUser() {
    if (getuid() == 0 && (seteuid(0) != 0 || setegid(0) != 0)) _exit(1);
  }

 private:
  static constexpr unsigned kNobody = 65534;
};

}  // namespace dayvane::testing
