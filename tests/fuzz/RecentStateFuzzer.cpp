// SPDX-License-Identifier: MIT

// The state that is kept of the list of recent documents.

#include <string>

#include "linux/recent/RecentState.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

using recent::ReadState;
using recent::RecentState;
using recent::WriteState;

bool IsSame(const RecentState& a, const RecentState& b) {
  return a.documents == b.documents && a.memories == b.memories && a.programs == b.programs &&
         a.forgotten == b.forgotten && a.isEmptied == b.isEmptied;
}

bool IsPartOf(const RecentState& part, const RecentState& whole) {
  for (const auto& [path, document] : part.documents) {
    const auto known = whole.documents.find(path);
    if (known == whole.documents.end() || known->second != document) return false;
  }
  return true;
}

}  // namespace

void Try(std::string_view bytes) {
  const RecentState state = ReadState(bytes).state;
  const std::string written = WriteState(state);
  constexpr std::size_t kFrame = 64;
  Require(written.size() <= 3 * bytes.size() + kFrame, "a state grows by no more than its escapes when it is written");

  const auto again = ReadState(written);
  Require(!again.isDamaged && IsSame(again.state, state), "a state that is written is read back");

  // Cut where the input's last byte says.
  const std::size_t length = bytes.empty() ? 0 : written.size() * static_cast<unsigned char>(bytes.back()) / 256;
  const auto cut = ReadState(std::string_view(written).substr(0, length));
  Require(cut.isDamaged && IsPartOf(cut.state, state),
          "a state that is cut short is known as damaged and invents nothing");
}

}  // namespace dayvane::fuzzing
