// SPDX-License-Identifier: MIT
#include "linux/recent/LastPrograms.h"

#include "linux/glib/GlibHandles.h"

namespace dayvane::recent {

namespace {

/// Types are free text in the list, so a strange list must not fill the memory.
constexpr std::size_t kMostTypes = 1000;

std::string TypeOf(const Opening& opening) {
  const std::string name = opening.path.substr(opening.path.rfind('/') + 1);
  const glib::Text type(g_content_type_guess(name.c_str(), nullptr, 0, nullptr));
  return type && !g_content_type_is_unknown(type.get()) ? type.get() : opening.mimeType;
}

/// A portal's dialog is not the program that opens the document.
bool IsProgram(const std::string& name) {
  return !name.empty() && !name.starts_with("xdg-desktop-portal");
}

}  // namespace

void LastPrograms::Note(const Opening& opening) {
  if (!IsProgram(opening.program)) return;
  const std::string type = TypeOf(opening);
  if (type.empty() || (m_types.size() >= kMostTypes && !m_types.contains(type))) return;
  LastProgram& last = m_types[type];
  if (opening.moment > last.moment) last = {opening.moment, opening.program};
}

std::optional<std::string> LastPrograms::Find(const std::string& type) const {
  const auto last = m_types.find(type);
  return last == m_types.end() ? std::nullopt : std::optional(last->second.program);
}

}  // namespace dayvane::recent
