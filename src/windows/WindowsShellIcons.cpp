// SPDX-License-Identifier: MIT
#include "windows/WindowsShellIcons.h"

#include <utility>

#include "app/IgnoreErrors.h"
#include "app/ShellServices.h"
#include "base/Error.h"
#include "base/Text.h"
#include "windows/files/WideText.h"
#include "windows/launch/SystemIcon.h"
#include "windows/registry/Key.h"

namespace dayvane {

namespace {

using platform::ShellFileInfo;

constexpr std::string_view kShortcutExtension = ".lnk";
constexpr std::uint32_t kAsksForIcon = platform::kInfoIcon;

/// The flags that choose among the icons of an item and may be combined with its place in the system's image list.
constexpr std::uint32_t kPassedOn = SHGFI_OPENICON | platform::kInfoSmallIcon | platform::kInfoShellIconSize |
                                    platform::kInfoByIdentifier | platform::kInfoUseAttributes |
                                    platform::kInfoDisplayName | platform::kInfoTypeName;

/// `item` is a path or, as the flags say, an identifier.
std::optional<ShellFileInfo> AskSystem(const void* item, std::uint32_t attributes, std::uint32_t flags) {
  SHFILEINFOW found{};
  const UINT asked = (flags & kPassedOn) | ((flags & kAsksForIcon) != 0 ? UINT{SHGFI_SYSICONINDEX} : 0U);
  if (SHGetFileInfoW(static_cast<const wchar_t*>(item), attributes, &found, sizeof found, asked) == 0)
    return std::nullopt;
  ShellFileInfo info;
  if ((flags & kAsksForIcon) != 0) info.icon = platform::Picture{{launch::SystemIconName(found.iIcon)}, 0};
  info.displayName = files::FromWide(found.szDisplayName).value_or("");
  info.typeName = files::FromWide(found.szTypeName).value_or("");
  return info;
}

/// The extension with its "."; empty for a name without one, and for one that no type of documents can have.
std::string ExtensionIn(const std::string& name) {
  constexpr std::size_t kLongest = 64;
  const auto dot = name.rfind('.');
  if (dot == std::string::npos || dot + 1 == name.size() || name.size() - dot > kLongest) return {};
  std::string extension = name.substr(dot);
  return extension.find_first_of("\\/:*?\"<>| ") == std::string::npos ? extension : std::string();
}

bool NamesType(const std::string& name) {
  const std::string extension = ExtensionIn(name);
  bool isKnown = false;
  IgnoreErrors([&] {
    isKnown = !extension.empty() && registry::Key::Open(HKEY_CLASSES_ROOT, extension, KEY_QUERY_VALUE).has_value();
  });
  return isKnown;
}

/// By the extension alone: some names are devices to the system, or longer than it takes.
std::optional<ShellFileInfo> InfoOfName(const std::string& name, std::uint32_t attributes, std::uint32_t flags) {
  const auto wide = files::ToWide("x" + ExtensionIn(name));
  auto info = AskSystem(wide.value_or(L"x").c_str(), attributes, flags | platform::kInfoUseAttributes);
  if (info) info->displayName = (flags & platform::kInfoDisplayName) != 0 ? name : "";
  return info;
}

}  // namespace

std::uint64_t WindowsShellIcons::SpecialFolderIdentifier(int number) {
  auto known = m_folders.find(number);
  if (known == m_folders.end()) {
    LPITEMIDLIST list = nullptr;
    const HRESULT result = SHGetSpecialFolderLocation(nullptr, number, &list);
    launch::TaskMemory<ITEMIDLIST> owner(list);
    if (FAILED(result) || list == nullptr)
      throw Error(kPathNotFound, "No special folder of number " + std::to_string(number));
    known = m_folders.emplace(number, std::move(owner)).first;
  }
  return reinterpret_cast<std::uint64_t>(known->second.get());
}

std::optional<ShellFileInfo> WindowsShellIcons::FileInfo(const std::string& path, std::uint32_t attributes,
                                                         std::uint32_t flags) {
  // The root of a drive is asked for as it is: each kind of drive has an icon of its own.
  if ((flags & platform::kInfoUseAttributes) == 0) {
    const auto wide = files::ToWide(path);
    return wide ? AskSystem(wide->c_str(), attributes, flags) : std::nullopt;
  }
  std::string name = SplitPath(path).fileName;
  const bool isFolder = (attributes & platform::kAttributeDirectory) != 0;
  if (isFolder || !text::EndsWithIgnoringCase(name, kShortcutExtension)) return InfoOfName(name, attributes, flags);
  name.resize(name.size() - kShortcutExtension.size());
  return InfoOfShortcut(path, std::move(name), attributes, flags);
}

std::optional<ShellFileInfo> WindowsShellIcons::InfoOfShortcut(const std::string& path, std::string name,
                                                               std::uint32_t attributes, std::uint32_t flags) {
  std::string typed = name;
  if ((flags & platform::kInfoIcon) != 0 && !NamesType(name)) {
    platform::ShellLink link;
    IgnoreErrors([&] { link = m_shell.ReadShellLink(path).link; });
    if (link.targetIsFolder) attributes = platform::kAttributeDirectory;
    if (!link.target.empty()) typed = SplitPath(link.target).fileName;
  }
  auto info = InfoOfName(typed, attributes, flags);
  if (info && !info->displayName.empty()) info->displayName = std::move(name);
  return info;
}

std::optional<ShellFileInfo> WindowsShellIcons::FileInfo(std::uint64_t identifier, std::uint32_t attributes,
                                                         std::uint32_t flags) {
  for (const auto& [number, list] : m_folders)
    if (reinterpret_cast<std::uint64_t>(list.get()) == identifier)
      return AskSystem(list.get(), attributes, flags | platform::kInfoByIdentifier);
  return std::nullopt;
}

}  // namespace dayvane
