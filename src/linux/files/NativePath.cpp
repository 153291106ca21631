// SPDX-License-Identifier: MIT
#include "linux/files/NativePath.h"

#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <unistd.h>
#include <utility>

#include "base/Text.h"
#include "base/Utf8.h"

namespace dayvane::files {

namespace {

constexpr std::string_view kQuoteStandIn = "\xEF\x80\xA2";      // U+F022
constexpr std::string_view kBackslashStandIn = "\xEF\x81\x9C";  // U+F05C

void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
  for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

std::string NativePart(std::string_view part) {
  std::string native(part);
  for (char& c : native)
    if (c == '\\') c = '/';
  return ForReading(std::move(native));
}

/// The value of an environment variable that holds an absolute path, or empty.
std::string PathVariable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && value[0] == '/' ? value : "";
}

/// Folder that a drive of the user's Windows environment stands for, when there is such an environment. Only the
/// environment's own link is read: what it points at may be asleep, or on another computer.
std::optional<std::string> DriveFolder(char letter) {
  namespace fs = std::filesystem;
  fs::path environment = PathVariable("WINEPREFIX");
  if (environment.empty()) environment = fs::path(PathVariable("HOME")) / ".wine";
  const fs::path devices = environment / "dosdevices";
  std::error_code error;
  const fs::path target = fs::read_symlink(devices / (std::string(1, letter) + ":"), error);
  if (error) return std::nullopt;
  std::string folder = (devices / target).lexically_normal();
  if (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
  return folder;
}

bool Exists(const std::string& path) {
  return access(path.c_str(), F_OK) == 0;
}

/// The name in the folder that differs from `name` only in letter case.
std::optional<std::string> FindIgnoringCase(const std::string& folder, const std::string& name) {
  const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(folder.c_str()), &closedir);
  if (!open) return std::nullopt;
  while (const dirent* entry = readdir(open.get()))
    if (text::CompareIgnoringCase(entry->d_name, name) == 0) return std::string(entry->d_name);
  return std::nullopt;
}

}  // namespace

std::string ForReading(std::string text) {
  ReplaceAll(text, kQuoteStandIn, "\"");
  ReplaceAll(text, kBackslashStandIn, "\\");
  return text;
}

std::optional<std::string> ToNative(std::string_view path) {
  if (path.size() < 2 || path[1] != ':') return std::nullopt;
  const char letter = static_cast<char>(path[0] | 0x20);
  if (letter < 'a' || letter > 'z') return std::nullopt;
  std::string native = NativePart(path.substr(2));
  if (native.empty()) native = "/";
  // A null character would cut the path short on its way to the system.
  if (native[0] != '/' || native.find('\0') != std::string::npos) return std::nullopt;
  if (letter == 'z') return native;
  const auto folder = DriveFolder(letter);
  if (!folder) return std::nullopt;
  return *folder == "/" ? native : *folder + native;
}

std::optional<std::string> ResolveNative(std::string_view path) {
  auto native = ToNative(path);
  if (!native || Exists(*native)) return native;
  std::string resolved;
  std::size_t start = 1;
  while (start <= native->size()) {
    const auto end = std::min(native->find('/', start), native->size());
    const std::string name = native->substr(start, end - start);
    start = end + 1;
    if (name.empty()) continue;
    std::string next = resolved + "/" + name;
    if (!Exists(next)) {
      const auto found = FindIgnoringCase(resolved.empty() ? "/" : resolved, name);
      if (!found) return native;
      next = resolved + "/" + *found;
    }
    resolved = std::move(next);
  }
  return resolved;
}

std::optional<std::string> NameFromNative(std::string_view nativeName) {
  const bool ambiguous = nativeName.find(kQuoteStandIn) != std::string_view::npos ||
                         nativeName.find(kBackslashStandIn) != std::string_view::npos;
  if (ambiguous || !utf8::IsValid(nativeName)) return std::nullopt;
  std::string name(nativeName);
  ReplaceAll(name, "\\", kBackslashStandIn);
  ReplaceAll(name, "\"", kQuoteStandIn);
  return name;
}

std::optional<std::string> FromNative(std::string_view nativePath) {
  if (!nativePath.starts_with('/')) return std::nullopt;
  auto path = NameFromNative(nativePath);
  if (!path) return std::nullopt;
  for (char& c : *path)
    if (c == '/') c = '\\';
  return "Z:" + *path;
}

}  // namespace dayvane::files
