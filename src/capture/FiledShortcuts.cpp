// SPDX-License-Identifier: MIT
#include "capture/FiledShortcuts.h"

namespace dayvane {

namespace {

/// More than a Recent folder holds: what goes beyond are shortcuts that are gone.
constexpr std::size_t kMostRemembered = 50'000;

}  // namespace

bool FiledShortcuts::HasMoment(const std::string& path, const platform::FileMoment& written) const {
  const auto status = m_files.Status(path);
  return status && status->written == written;
}

bool FiledShortcuts::IsUnchanged(const std::string& shortcut) const {
  const auto found = m_filed.find(shortcut);
  if (found == m_filed.end()) return false;
  return HasMoment(shortcut, found->second.written) && HasMoment(found->second.copy, found->second.written);
}

void FiledShortcuts::Remember(const std::string& shortcut, const std::string& copy,
                              const platform::FileMoment& written) {
  if (m_filed.size() >= kMostRemembered) m_filed.clear();
  m_filed.insert_or_assign(shortcut, Filed{copy, written});
}

}  // namespace dayvane
