// SPDX-License-Identifier: MIT

// What the user does not want on record.

#include <algorithm>
#include <string>

#include "linux/recent/ExclusionRules.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

using recent::ExclusionRules;
using recent::Opening;

constexpr const char* kHome = "/home/ana";

}  // namespace

void Try(std::string_view bytes) {
  const ExclusionRules rules(bytes, {kHome});
  const auto lines = 1 + std::ranges::count(bytes, '\n');
  Require(rules.BadLines().size() <= static_cast<std::size_t>(lines), "a line is bad once");

  // The rules themselves make odd paths.
  const std::string text(bytes.substr(0, bytes.find('\0')));
  for (const std::string& path : {"/home/ana/a.txt" + text, "/" + text, text})
    rules.Cover({path, 0, text, path.size() % 2 == 0 ? text : ""});

  const Opening secret{"/home/ana/Private/a.txt", 0, "kate", "text/plain"};
  Require(ExclusionRules(std::string(bytes) + "\n~/Private\n", {kHome}).Cover(secret), "a bad line costs only itself");
}

}  // namespace dayvane::fuzzing
