// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "app/Application.h"
#include "platform/ShellIcons.h"

namespace dayvane {

/// The two icons that the views show for one file, folder or special shell folder.
class CFileInfo {
 public:
  static constexpr const char* ClassName = "CFileInfo";

  explicit CFileInfo(Application& application) : m_application(application) {}

  /// The thing to describe: a path; or a number, below 50 a special folder's, else a shell item identifier. An item
  /// that the shell does not know leaves the one before in place.
  void SetItem(const std::string& path);
  void SetItem(std::uint64_t number);

  /// Only the flags open state (2), link overlay (0x8000) and selected state (0x10000) pass through. Nothing when
  /// there is no icon; an error is reported.
  std::optional<platform::Picture> SmallIcon(std::uint32_t afOverlay = 0) const {
    return Icon("SmallIcon", afOverlay, platform::kInfoSmallIcon);
  }
  std::optional<platform::Picture> ShellIcon(std::uint32_t afOverlay = 0) const {
    return Icon("ShellIcon", afOverlay, platform::kInfoShellIconSize);
  }

 private:
  std::optional<platform::Picture> Icon(const char* procedure, std::uint32_t afOverlay, std::uint32_t sizeFlag) const;
  std::optional<platform::ShellFileInfo> GetFileItemInfo(std::uint32_t flags) const;

  Application& m_application;
  std::variant<std::monostate, std::string, std::uint64_t> m_item;
  std::uint32_t m_attributes = 0;
  std::uint32_t m_attributeFlag = 0;
};

}  // namespace dayvane
