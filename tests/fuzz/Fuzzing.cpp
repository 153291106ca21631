// SPDX-License-Identifier: MIT
#include "tests/fuzz/Fuzzing.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace dayvane::fuzzing {

void Require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "Not true: %s\n", property);
  std::abort();
}

}  // namespace dayvane::fuzzing

/// libFuzzer's entry.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  dayvane::fuzzing::Try({reinterpret_cast<const char*>(data), size});
  return 0;
}
