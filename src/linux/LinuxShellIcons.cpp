// SPDX-License-Identifier: MIT
#include "linux/LinuxShellIcons.h"

#include <gio/gio.h>

#include "app/IgnoreErrors.h"
#include "app/ShellServices.h"
#include "base/Text.h"
#include "linux/files/NativePath.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane {

namespace {

constexpr std::uint64_t kFirstFolderIdentifier = 1U << 16;  ///< beyond all numbers of special folders
constexpr const char* kFolderType = "inode/directory";
constexpr const char* kProgramType = "application/x-executable";
constexpr std::string_view kShortcutExtension = ".lnk";

std::vector<std::string> IconNames(GIcon* icon) {
  std::vector<std::string> names;
  if (G_IS_THEMED_ICON(icon)) {
    for (const gchar* const* name = g_themed_icon_get_names(G_THEMED_ICON(icon)); *name != nullptr; ++name)
      names.emplace_back(*name);
  } else if (G_IS_FILE_ICON(icon)) {
    // An application may bring a picture of its own: its path stands for a name.
    const glib::Text path(g_file_get_path(g_file_icon_get_file(G_FILE_ICON(icon))));
    if (path) names.emplace_back(path.get());
  }
  return names;
}

platform::ShellFileInfo InfoOfType(const char* contentType) {
  const glib::Object<GIcon> icon(g_content_type_get_icon(contentType));
  const glib::Text description(g_content_type_get_description(contentType));
  return {platform::Picture{IconNames(icon.get()), 0}, {}, description.get()};
}

}  // namespace

std::uint64_t LinuxShellIcons::SpecialFolderIdentifier(int number) {
  return kFirstFolderIdentifier + static_cast<unsigned>(number);
}

std::optional<platform::ShellFileInfo> LinuxShellIcons::FileInfo(const std::string& path, std::uint32_t attributes,
                                                                 std::uint32_t flags) {
  std::string name = SplitPath(path).fileName;
  const bool isShortcut =
      text::EndsWithIgnoringCase(name, kShortcutExtension) && attributes != platform::kAttributeDirectory;
  if (isShortcut) name.resize(name.size() - kShortcutExtension.size());
  // When a name fits several types, GIO is "uncertain" and gives the likeliest, which is good enough.
  const glib::Text type(attributes == platform::kAttributeDirectory
                            ? g_strdup(kFolderType)
                            : g_content_type_guess(name.c_str(), nullptr, 0, nullptr));
  std::optional<platform::ShellFileInfo> info;
  const bool mayBeOther = g_content_type_is_unknown(type.get()) != 0 || m_programs.HasName(name);
  if (isShortcut && (flags & platform::kInfoIcon) != 0 && mayBeOther) info = InfoOfShortcut(path);
  if (!info) info = InfoOfType(type.get());
  info->displayName = name;
  return info;
}

std::optional<platform::ShellFileInfo> LinuxShellIcons::InfoOfShortcut(const std::string& path) {
  platform::ShellLink link;
  IgnoreErrors([&] { link = m_shell.ReadShellLink(path).link; });
  if (link.targetIsFolder) return InfoOfType(kFolderType);
  if (LeadsToProgram(link)) return InfoOfProgram(link.target);
  return std::nullopt;
}

platform::ShellFileInfo LinuxShellIcons::InfoOfProgram(const std::string& program) {
  platform::ShellFileInfo info = InfoOfType(kProgramType);
  GAppInfo* application = m_programs.Find(files::ToNative(program).value_or(""));
  GIcon* icon = application == nullptr ? nullptr : g_app_info_get_icon(application);
  if (icon == nullptr) return info;
  const auto own = IconNames(icon);
  info.icon->iconNames.insert(info.icon->iconNames.begin(), own.begin(), own.end());
  return info;
}

std::optional<platform::ShellFileInfo> LinuxShellIcons::FileInfo(std::uint64_t identifier, std::uint32_t,
                                                                 std::uint32_t) {
  if (identifier < kFirstFolderIdentifier) return std::nullopt;
  return InfoOfType(kFolderType);
}

}  // namespace dayvane
