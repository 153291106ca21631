// SPDX-License-Identifier: MIT
#include "tests/linux/disk/BrokenDisk.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace dayvane::testing {

namespace {

constexpr unsigned kLooks[] = {SYS_newfstatat, SYS_statx,
#ifdef SYS_lstat
                               SYS_lstat, SYS_stat
#endif
};

/// A filter of system calls, seccomp(2); it cannot be taken back.
bool BreakDisk() {
  sock_filter filter[2 * std::size(kLooks) + 2];
  std::size_t size = 0;
  filter[size++] = BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr));
  for (const unsigned call : kLooks) {
    filter[size++] = BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1);
    filter[size++] = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EIO);
  }
  filter[size++] = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
  const sock_fprog program{static_cast<unsigned short>(size), filter};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

}  // namespace

bool OnABrokenDisk(const std::function<bool()>& action) {
  const pid_t child = fork();
  if (child == 0) {
    bool answer = false;
    try {
      answer = BreakDisk() && action();
    } catch (const std::exception&) {
    }
    std::_Exit(answer ? EXIT_SUCCESS : EXIT_FAILURE);
  }
  int status = -1;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

}  // namespace dayvane::testing
