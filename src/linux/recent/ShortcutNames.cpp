// SPDX-License-Identifier: MIT
#include "linux/recent/ShortcutNames.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace dayvane::recent {

namespace {

constexpr std::string_view kExtension = ".lnk";
constexpr std::size_t kLongestName = 255;  // bytes: NAME_MAX of the usual file systems
constexpr std::size_t kMostDigits = 6;     // a longer number belongs to the document's name

/// The first `size` bytes, or a little less where that would cut a character in two.
std::string_view Shortened(std::string_view text, std::size_t size) {
  if (text.size() <= size) return text;
  while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U) --size;
  return text.substr(0, size);
}

/// "Report.odt" and 2 for "Report.odt (2).lnk".
std::pair<std::string_view, int> SplitNumber(std::string_view name) {
  name.remove_suffix(kExtension.size());
  const auto start = name.rfind(" (");
  if (start == std::string_view::npos || !name.ends_with(')')) return {name, 1};
  const std::string_view digits = name.substr(start + 2, name.size() - start - 3);
  const bool isNumber = digits.size() <= kMostDigits && text::IsNumeric(digits);
  const auto number = isNumber ? text::ToInt32(digits) : std::nullopt;
  return number ? std::pair{name.substr(0, start), *number} : std::pair{name, 1};
}

/// FNV-1a, folded to 16 bits. It is kept in the state file, so it must never change.
std::uint16_t Hash(std::string_view text) {
  std::uint32_t hash = 2166136261U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  return static_cast<std::uint16_t>((hash >> 16U) ^ hash);
}

std::uint16_t FamilyOf(const std::string& name) {
  return Hash(text::ToLower(SplitNumber(name).first));
}

}  // namespace

std::string ShortcutName(const std::string& documentName, int number) {
  const std::string stem = (documentName.starts_with('.') ? "_" : "") + documentName;
  const std::string suffix = (number == 1 ? "" : " (" + std::to_string(number) + ")") + std::string(kExtension);
  return std::string(Shortened(stem, kLongestName - suffix.size())) + suffix;
}

std::string ShortcutNames::Choose(const std::string& documentName,
                                  const std::function<bool(const std::string&)>& isInFolder) {
  int& number = m_lowestFreeNumbers.try_emplace(text::ToLower(ShortcutName(documentName, 1)), 1).first->second;
  for (;; ++number) {
    std::string name = ShortcutName(documentName, number);
    if (IsForgotten(name))
      number = std::max(number, m_forgotten.highestNumber);
    else if (Owner(name) == nullptr && !isInFolder(name))
      return name;
  }
}

void ShortcutNames::Take(const std::string& name, const std::string& owner) {
  m_owners[text::ToLower(name)] = owner;
}

void ShortcutNames::Forget(const std::string& name, Moment lastOpening) {
  m_forgotten.latest = std::max(m_forgotten.latest, lastOpening);
  if (name.empty()) return;
  m_forgotten.highestNumber = std::max(m_forgotten.highestNumber, SplitNumber(name).second);
  m_forgotten.families.insert(FamilyOf(name));
  m_owners.erase(text::ToLower(name));
}

const std::string* ShortcutNames::Owner(const std::string& name) const {
  const auto owner = m_owners.find(text::ToLower(name));
  return owner == m_owners.end() ? nullptr : &owner->second;
}

bool ShortcutNames::IsForgotten(const std::string& name) const {
  return SplitNumber(name).second <= m_forgotten.highestNumber && m_forgotten.families.contains(FamilyOf(name));
}

}  // namespace dayvane::recent
