// SPDX-License-Identifier: MIT
#include "windows/files/NativePath.h"

#include <algorithm>
#include <vector>

#include "base/Text.h"
#include "windows/files/WideText.h"

namespace dayvane::files {

namespace {

constexpr std::wstring_view kLiteral = L"\\\\?\\";
constexpr std::wstring_view kLiteralShare = L"\\\\?\\UNC\\";

bool IsDrive(std::string_view path) {
  const char letter = path.empty() ? '\0' : static_cast<char>(path[0] | 0x20);
  return path.size() >= 2 && path[1] == ':' && letter >= 'a' && letter <= 'z' && (path.size() == 2 || path[2] == '\\');
}

/// The parts of a path without empty ones, "." and "..", which a literal path may not have. A ".." never leaves the
/// first `fixed` parts, the drive or the share.
std::vector<std::string_view> Parts(std::string_view path, std::size_t fixed) {
  std::vector<std::string_view> parts;
  for (const std::string_view part : text::Split(path, '\\')) {
    if (part.empty() || part == ".") continue;
    if (part != "..")
      parts.push_back(part);
    else if (parts.size() > fixed)
      parts.pop_back();
  }
  return parts;
}

}  // namespace

std::optional<std::wstring> ToNative(std::string_view path) {
  std::string plain(path);
  std::ranges::replace(plain, '/', '\\');
  const bool isShare = plain.starts_with("\\\\");
  if (plain.find('\0') != std::string::npos || (!isShare && !IsDrive(plain))) return std::nullopt;
  const std::size_t fixed = isShare ? 2 : 1;
  const auto parts = Parts(plain, fixed);
  if (parts.size() < fixed || parts[0] == "?") return std::nullopt;
  std::string joined;
  for (const std::string_view part : parts) joined.append(joined.empty() ? "" : "\\").append(part);
  // The root of a drive is a folder only with its separator.
  if (parts.size() == fixed) joined += '\\';
  const auto wide = ToWide(joined);
  if (!wide) return std::nullopt;
  return std::wstring(isShare ? kLiteralShare : kLiteral) + *wide;
}

std::optional<std::string> FromNative(std::wstring_view nativePath) {
  if (nativePath.starts_with(kLiteralShare)) {
    const auto rest = FromWide(nativePath.substr(kLiteralShare.size()));
    return rest ? std::optional("\\\\" + *rest) : std::nullopt;
  }
  if (nativePath.starts_with(kLiteral)) nativePath.remove_prefix(kLiteral.size());
  auto path = FromWide(nativePath);
  if (path) std::ranges::replace(*path, '/', '\\');
  return path;
}

}  // namespace dayvane::files
