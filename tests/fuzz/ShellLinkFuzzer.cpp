// SPDX-License-Identifier: MIT

// Bytes of a shortcut: what can be read of them can be written and read again.

#include "links/ShellLinkFormat.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

void Try(std::string_view bytes) {
  const auto link = links::ParseShellLink(bytes);
  if (!link) return;
  const std::size_t texts =
      link->target.size() + link->workingDirectory.size() + link->arguments.size() + link->iconFile.size();
  // UTF-16 needs at most three bytes of UTF-8 for two of its own, and some parts of a link repeat the target.
  Require(texts <= 8 * bytes.size(), "the texts of a link are no longer than the link");
  const std::string written = links::WriteShellLink(*link);
  Require(links::ParseShellLink(written) == link, "a link that is written is read back");
}

}  // namespace dayvane::fuzzing
