// SPDX-License-Identifier: MIT
#include "linux/recent/ExclusionRules.h"

#include <algorithm>
#include <fnmatch.h>
#include <gio/gio.h>

#include "base/Text.h"
#include "linux/glib/GlibHandles.h"
#include "linux/recent/ProgramNames.h"

namespace dayvane::recent {

namespace {

constexpr std::size_t kLongestPattern = 4096;  ///< bytes, as a path has at most

bool Fits(const std::string& pattern, const std::string& text) {
  return fnmatch(pattern.c_str(), text.c_str(), 0) == 0;
}

bool FitsAny(const std::vector<std::string>& patterns, const std::string& text) {
  return std::ranges::any_of(patterns, [&](const std::string& pattern) { return Fits(pattern, text); });
}

/// A path as a pattern that fits nothing else.
std::string Literal(std::string_view path) {
  std::string pattern;
  for (const char c : path) {
    if (c == '*' || c == '?' || c == '[' || c == '\\') pattern += '\\';
    pattern += c;
  }
  return pattern;
}

/// The document's type, or the one that its name suggests where it is not known. What a sandboxed program opens is
/// reported as bytes of any kind.
std::string KnownOrGuessedType(const Opening& opening) {
  if (!opening.mimeType.empty() && opening.mimeType != "application/octet-stream") return opening.mimeType;
  const std::string name = opening.path.substr(opening.path.rfind('/') + 1);
  const glib::Text type(g_content_type_guess(name.c_str(), nullptr, 0, nullptr));
  return type ? type.get() : "";
}

}  // namespace

ExclusionRules::ExclusionRules(std::string_view text, const std::vector<std::string>& homes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::size_t number = 0;
  for (const std::string_view line : text::Split(text, '\n')) {
    auto complaint = AddLine(text::Trim(line.substr(0, line.size() - (line.ends_with('\r') ? 1 : 0))), homes);
    ++number;
    if (!complaint.empty()) m_badLines.push_back({number, std::move(complaint)});
  }
}

std::string ExclusionRules::AddLine(std::string_view line, const std::vector<std::string>& homes) {
  constexpr std::string_view kType = "type:";
  constexpr std::string_view kProgram = "program:";
  if (line.empty() || line.starts_with('#')) return "";
  if (line.find('\0') != std::string_view::npos) return "it is not text";
  if (line.size() > kLongestPattern) return "it is too long";
  const bool isType = line.starts_with(kType);
  if (!isType && !line.starts_with(kProgram)) return AddPath(line, homes);
  const auto pattern = text::ToLower(text::Trim(line.substr(isType ? kType.size() : kProgram.size())));
  if (pattern.empty()) return "nothing stands behind the colon";
  (isType ? m_types : m_programs).push_back(pattern);
  return "";
}

std::string ExclusionRules::AddPath(std::string_view pattern, const std::vector<std::string>& homes) {
  while (pattern.ends_with('/')) pattern.remove_suffix(1);
  if (pattern.empty()) return "it would leave out everything";
  if (pattern == "~" || pattern.starts_with("~/")) {
    for (const std::string& home : homes) m_paths.push_back(Literal(home).append(pattern.substr(1)));
    return "";
  }
  const bool isName = pattern.find('/') == std::string_view::npos;
  if (!isName && !pattern.starts_with('/') && !pattern.starts_with('*'))
    return "a path begins with \"/\", \"~/\" or \"*\"";
  (isName ? m_names : m_paths).emplace_back(pattern);
  return "";
}

bool ExclusionRules::Cover(const Opening& opening) const {
  return CoverPath(opening.path) || CoverType(opening) || CoverProgram(opening.program);
}

bool ExclusionRules::CoverPath(const std::string& path) const {
  // From the document up through the folders that it lies in.
  for (std::string above = path; !above.empty();) {
    const auto slash = above.rfind('/');
    const bool isCovered = FitsAny(m_paths, above) || FitsAny(m_names, above.substr(slash + 1));
    if (isCovered) return true;
    above.resize(slash == std::string::npos ? 0 : slash);
  }
  return false;
}

bool ExclusionRules::CoverType(const Opening& opening) const {
  return !m_types.empty() && FitsAny(m_types, text::ToLower(KnownOrGuessedType(opening)));
}

bool ExclusionRules::CoverProgram(const std::string& program) const {
  if (m_programs.empty() || program.empty()) return false;
  return FitsAny(m_programs, text::ToLower(program)) || FitsAny(m_programs, PlainProgramName(program));
}

}  // namespace dayvane::recent
