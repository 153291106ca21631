// The user's settings file, which may be edited by hand.

#include <string>

#include "linux/registry/SettingsText.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

using registry::ParseSettings;
using registry::SettingsKeys;
using registry::WriteSettings;

/// Keys without values are not written.
SettingsKeys WithValues(SettingsKeys keys) {
  std::erase_if(keys, [](const auto& key) { return key.second.empty(); });
  return keys;
}

}  // namespace

void Try(std::string_view bytes) {
  const SettingsKeys keys = WithValues(ParseSettings(bytes).keys);
  const std::string written = WriteSettings(keys);
  Require(written.size() <= 5 * bytes.size() + 1, "settings grow by no more than their escapes when they are written");
  const auto again = ParseSettings(written);
  Require(!again.damaged && again.keys == keys, "settings that are written are read back");

  // What a person or a broken disk adds at the end takes nothing away.
  std::string damaged = written + "\n\xFF no setting\n";
  Require(ParseSettings(damaged).keys == keys, "damage costs no setting that stands before it");
}

}  // namespace dayvane::fuzzing
