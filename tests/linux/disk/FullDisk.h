// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <stdexcept>
#include <sys/resource.h>

namespace dayvane::testing {

/// While it lives, no file of this process can grow beyond `room` bytes, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t room = 0) : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
    if (getrlimit(RLIMIT_FSIZE, &m_limit) != 0) throw std::runtime_error("no limit of file size");
    rlimit full = m_limit;
    full.rlim_cur = room;
    setrlimit(RLIMIT_FSIZE, &full);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_limit);
    std::signal(SIGXFSZ, m_signal);
  }

 private:
  void (*m_signal)(int);
  rlimit m_limit{};
};

}  // namespace dayvane::testing
