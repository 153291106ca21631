// Reads whatever bytes the fuzzer makes up, and reads again what it would write of them.

#include <cstdint>
#include <cstdlib>

#include "linux/links/ShellLinkFormat.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace dayvane;
  const auto link = links::ParseShellLink({reinterpret_cast<const char*>(data), size});
  if (link && links::ParseShellLink(links::WriteShellLink(*link)) != link) std::abort();
  return 0;
}
