// SPDX-License-Identifier: MIT
#include "linux/recent/DocumentPath.h"

#include <climits>

#include "base/Text.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::recent {

namespace {

bool IsThisMachine(const char* host) {
  return host == nullptr || *host == '\0' || text::CompareIgnoringCase(host, "localhost") == 0;
}

/// Without doubled slashes and without one at the end.
std::string Simplified(std::string_view path) {
  std::string simple;
  for (const char c : path)
    if (c != '/' || !simple.ends_with('/')) simple += c;
  if (simple.ends_with('/')) simple.pop_back();
  return simple;
}

/// ".Trash" (which holds a folder for each user) or ".Trash-1000".
bool IsTrashFolder(std::string_view name) {
  constexpr std::string_view kTrash = ".Trash";
  if (!name.starts_with(kTrash)) return false;
  name.remove_prefix(kTrash.size());
  return name.empty() || (name.starts_with('-') && text::IsNumeric(name.substr(1)));
}

}  // namespace

std::optional<std::string> DocumentPath(const std::string& href) {
  char* host = nullptr;
  // QUrl would not keep names that are not UTF-8.
  const glib::Text path(g_filename_from_uri(href.c_str(), &host, nullptr));
  const glib::Text ownedHost(host);
  if (!path || !IsThisMachine(host)) return std::nullopt;
  return SimplePath(path.get());
}

std::optional<std::string> SimplePath(std::string_view nativePath) {
  if (!nativePath.starts_with('/') || nativePath.find('\0') != std::string_view::npos) return std::nullopt;
  std::string simple = Simplified(nativePath);
  if (simple.empty() || simple.size() >= PATH_MAX) return std::nullopt;
  return simple;
}

bool LiesInTrash(std::string_view path, std::string_view dataHome) {
  if (path.starts_with(dataHome) && path.substr(dataHome.size()).starts_with("/Trash/")) return true;
  if (path.find("/.local/share/Trash/") != std::string_view::npos) return true;
  for (auto slash = path.find('/'); slash != std::string_view::npos;) {
    const auto next = path.find('/', slash + 1);
    if (next == std::string_view::npos) return false;  // a document with such a name
    if (IsTrashFolder(path.substr(slash + 1, next - slash - 1))) return true;
    slash = next;
  }
  return false;
}

}  // namespace dayvane::recent
