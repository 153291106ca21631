// SPDX-License-Identifier: MIT
#include "tests/faults/Faults.h"

#include <cstdlib>
#include <fcntl.h>
#include <fiu-control.h>
#include <stdexcept>
#include <string>
#include <unistd.h>

#define FIU_ENABLE 1
#include <fiu.h>

namespace dayvane::faults {

namespace {

/// All of libfiu's that concern files but closing a folder: it would not be closed, and its memory be lost.
constexpr const char* kPlaces[] = {"posix/io/oc/*",        "posix/io/sync/*",        "posix/io/rw/*",
                                   "posix/io/dir/opendir", "posix/io/dir/fdopendir", "posix/io/dir/readdir",
                                   "posix/io/dir/unlink",  "posix/io/dir/rename"};

/// A file whose closing failed is still open, which in a real fault it is not.
void CloseFrom(int first) {
  constexpr int kMany = 256;
  for (int number = first; number < first + kMany; ++number) close(number);
}

}  // namespace

Faults::Faults(unsigned seed, float probability) {
  static const bool isReady = fiu_init(0) == 0;
  if (!isReady) throw std::runtime_error("libfiu cannot be used");
  m_firstFree = open("/dev/null", O_RDONLY | O_CLOEXEC);
  fiu_set_prng_seed(seed);
  srandom(seed);  // libfiu's choice among the errors of a call
  for (const char* place : kPlaces) fiu_enable_random(place, 1, nullptr, 0, probability);
}

Faults::~Faults() {
  for (const char* place : kPlaces) fiu_disable(place);
  CloseFrom(m_firstFree);
}

}  // namespace dayvane::faults
