// SPDX-License-Identifier: MIT
#include "windows/registry/DocumentClasses.h"

#include <utility>

#include "app/IgnoreErrors.h"

namespace dayvane::registry {

namespace {

/// Endings are free text, so a folder of strange names must not fill the memory.
constexpr std::size_t kMostAnswers = 4096;

constexpr const char* kChoices = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts";
constexpr const char* kClassesOfUser = "Software\\Classes";
constexpr const char* kClassesOfAll = "Software\\Classes";

std::string BelowUser(const std::string& userRoot, const char* path) {
  return userRoot.empty() ? path : userRoot + "\\" + path;
}

/// A key that may not be read has no text either.
std::optional<std::string> TextAt(HKEY above, const std::string& path, const std::string& name) {
  std::optional<std::string> text;
  IgnoreErrors([&] {
    if (const auto key = Key::Open(above, path, KEY_QUERY_VALUE)) text = key->Text(name);
  });
  return text;
}

}  // namespace

DocumentClasses::DocumentClasses(const std::string& userRoot, Clock clock)
    : m_clock(std::move(clock)),
      m_choices(BelowUser(userRoot, kChoices)),
      // HKEY_CLASSES_ROOT is two keys seen as one, and can only be watched as the two.
      m_watches{ChangeWatch(HKEY_CURRENT_USER, kClassesOfUser), ChangeWatch(HKEY_LOCAL_MACHINE, kClassesOfAll),
                ChangeWatch(HKEY_CURRENT_USER, m_choices)},
      m_keptSince(m_clock()),
      m_checked(m_keptSince) {}

std::shared_ptr<const ClassKeyAnswer> DocumentClasses::Find(std::string_view path) {
  ForgetWhatMayHaveChanged();
  const auto known = m_answers.find(path);
  if (known != m_answers.end()) return known->second;
  auto answer = std::make_shared<const ClassKeyAnswer>(ClassKeyAnswer{std::string(path), Ask(std::string(path))});
  m_answers.emplace(answer->path, answer);
  return answer;
}

void DocumentClasses::ForgetWhatMayHaveChanged() {
  const auto now = m_clock();
  bool isOld = now - m_keptSince >= kLongestKept || m_answers.size() >= kMostAnswers;
  // Asking for changes takes longer than an answer that is known; once a tick is often enough for a person.
  if (std::exchange(m_checked, now) != now)
    for (ChangeWatch& watch : m_watches) isOld = watch.HasChanged() || isOld;
  if (!isOld) return;
  m_answers.clear();
  m_keptSince = now;
}

DocumentClasses::Answer DocumentClasses::Ask(const std::string& path) const {
  if (path.empty()) return std::nullopt;
  const bool isExtension = path[0] == '.' && path.find('\\') == std::string::npos;
  if (isExtension)
    if (auto chosen = ChosenClass(path)) return chosen;
  return TextAt(HKEY_CLASSES_ROOT, path, "");
}

DocumentClasses::Answer DocumentClasses::ChosenClass(const std::string& extension) const {
  auto chosen = TextAt(HKEY_CURRENT_USER, m_choices + "\\" + extension + "\\UserChoice", "ProgId");
  if (!chosen || chosen->empty() || TextAt(HKEY_CLASSES_ROOT, *chosen, "").value_or("").empty()) return std::nullopt;
  return chosen;
}

}  // namespace dayvane::registry
