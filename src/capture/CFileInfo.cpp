// SPDX-License-Identifier: MIT
#include "capture/CFileInfo.h"

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"

namespace dayvane {

namespace {

constexpr std::uint32_t kDisplayAndTypeName = platform::kInfoDisplayName | platform::kInfoTypeName;
constexpr std::uint32_t kOverlayMask = 0x18002;
constexpr std::uint64_t kFirstIdentifier = 50;  ///< smaller numbers are special folders

bool IsDriveRoot(const std::string& path) {
  return path.size() >= 2 && path[1] == ':' && path.size() <= 3;
}

/// 0 for an item that is not found, or whose disk does not answer: the shell then goes by the extension alone, and a
/// shortcut that was removed still has its icon.
std::uint32_t AttributesOf(platform::FileSystem& files, const std::string& path) {
  std::optional<platform::FileStatus> found;
  IgnoreErrors([&] { found = files.Status(path); });
  if (!found) return 0;
  return found->kind == platform::EntryKind::Folder ? platform::kAttributeDirectory : platform::kAttributeArchive;
}

}  // namespace

void CFileInfo::SetItem(std::uint64_t number) {
  platform::ShellIcons& icons = m_application.desktop.icons;
  const std::uint64_t identifier =
      number < kFirstIdentifier ? icons.SpecialFolderIdentifier(static_cast<int>(number)) : number;
  m_attributes = 0;
  m_attributeFlag = 0;
  if (icons.FileInfo(identifier, 0, kDisplayAndTypeName | platform::kInfoByIdentifier)) m_item = identifier;
}

void CFileInfo::SetItem(const std::string& path) {
  if (IsDriveRoot(path)) {
    m_attributes = 0;
    m_attributeFlag = 0;
  } else {
    const std::string searched = path.ends_with('\\') ? path.substr(0, path.size() - 1) : path;
    m_attributes = AttributesOf(m_application.desktop.files, searched);
    m_attributeFlag = platform::kInfoUseAttributes;
  }
  if (m_application.desktop.icons.FileInfo(path, m_attributes, kDisplayAndTypeName | m_attributeFlag)) m_item = path;
}

std::optional<platform::Picture> CFileInfo::Icon(const char* procedure, std::uint32_t afOverlay,
                                                 std::uint32_t sizeFlag) const {
  std::optional<platform::Picture> picture;
  ReportErrors(m_application, kProcessingSelection, ClassName, procedure, [&] {
    const auto info = GetFileItemInfo((afOverlay & kOverlayMask) | m_attributeFlag | platform::kInfoIcon | sizeFlag);
    if (info) picture = info->icon;
  });
  return picture;
}

std::optional<platform::ShellFileInfo> CFileInfo::GetFileItemInfo(std::uint32_t flags) const {
  platform::ShellIcons& icons = m_application.desktop.icons;
  if (const auto* path = std::get_if<std::string>(&m_item)) return icons.FileInfo(*path, m_attributes, flags);
  if (const auto* identifier = std::get_if<std::uint64_t>(&m_item))
    return icons.FileInfo(*identifier, 0, flags | platform::kInfoByIdentifier);
  return std::nullopt;
}

}  // namespace dayvane
