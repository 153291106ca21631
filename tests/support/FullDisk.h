#pragma once

#include <csignal>
#include <sys/resource.h>

namespace dayvane::testing {

/// No file may grow while it lives, as on a disk that is full.
class FullDisk {
 public:
  FullDisk() : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_limit);
    const struct rlimit none { 0, m_limit.rlim_max };
    setrlimit(RLIMIT_FSIZE, &none);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_limit);
    std::signal(SIGXFSZ, m_handler);
  }

 private:
  void (*m_handler)(int);
  struct rlimit m_limit {};
};

}  // namespace dayvane::testing
