// SPDX-License-Identifier: MIT

// The user's settings file, which may be edited by hand.

#include <string>

#include "linux/registry/SettingsText.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

using registry::ParseSettings;
using registry::SettingsKeys;
using registry::WriteSettings;

/// Whatever a value is called and whatever its text is, it is read back among the others.
void TryValue(SettingsKeys keys, std::string_view old, std::string_view bytes) {
  const std::string name(bytes.substr(0, bytes.size() / 2));
  keys["Key"][name] = bytes.substr(bytes.size() / 2);
  const std::string written = WriteSettings(keys, old);
  Require(ParseSettings(written) == keys, "a new value is read back with all others");
  keys["Key"][name] = "changed";
  Require(ParseSettings(WriteSettings(keys, written)) == keys, "a value that changes is read back with all others");
}

}  // namespace

void Try(std::string_view bytes) {
  TryValue({}, {}, bytes);
  const auto keys = ParseSettings(bytes);
  if (!keys) return;

  const std::string written = WriteSettings(*keys);
  Require(written.size() <= 5 * bytes.size() + 1, "settings grow by no more than their escapes when they are written");
  Require(ParseSettings(written) == keys, "settings that are written are read back");

  const std::string kept = WriteSettings(*keys, bytes);
  Require(kept.size() <= 2 * bytes.size() + 1, "a text grows by no more than the empty lines between its keys");
  Require(ParseSettings(kept) == keys, "settings that are written into their text are read back");
  Require(WriteSettings(*keys, kept) == kept, "a text in which nothing changes stays as it is");
  TryValue(*keys, bytes, bytes);
}

}  // namespace dayvane::fuzzing
