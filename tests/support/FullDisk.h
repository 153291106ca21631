#pragma once

#include <csignal>
#include <stdexcept>
#include <sys/resource.h>

namespace dayvane::testing {

/// While it lives, no file of this process can grow, as on a full disk.
class FullDisk {
 public:
  FullDisk() : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
    if (getrlimit(RLIMIT_FSIZE, &m_limit) != 0) throw std::runtime_error("no limit of file size");
    rlimit none = m_limit;
    none.rlim_cur = 0;
    setrlimit(RLIMIT_FSIZE, &none);
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
