#include "linux/LinuxShellIcons.h"

#include <gio/gio.h>

#include "app/ShellServices.h"
#include "base/Text.h"
#include "linux/GlibHandles.h"
#include "linux/files/NativePath.h"

namespace dayvane {

namespace {

constexpr std::uint32_t kDirectoryAttribute = 16;
constexpr std::uint64_t kFirstFolderIdentifier = 1U << 16;  ///< beyond all numbers of special folders

/// The name of what a shortcut stands for; any other name as it is.
std::string NameOf(const std::string& path) {
  std::string name = SplitPath(path).fileName;
  if (text::EndsWithIgnoringCase(name, ".lnk")) name.resize(name.size() - 4);
  return name;
}

std::vector<std::string> IconNamesOf(const char* contentType) {
  const glib::Object<GIcon> icon(g_content_type_get_icon(contentType));
  std::vector<std::string> names;
  if (!G_IS_THEMED_ICON(icon.get())) return names;
  for (const gchar* const* name = g_themed_icon_get_names(G_THEMED_ICON(icon.get())); *name != nullptr; ++name)
    names.emplace_back(*name);
  return names;
}

platform::ShellFileInfo InfoOfType(const char* contentType) {
  const glib::Text description(g_content_type_get_description(contentType));
  return {platform::Picture{IconNamesOf(contentType), 0}, {}, description.get()};
}

platform::ShellFileInfo FolderInfo() {
  return InfoOfType("inode/directory");
}

}  // namespace

std::uint64_t LinuxShellIcons::SpecialFolderIdentifier(int number) {
  return kFirstFolderIdentifier + static_cast<unsigned>(number);
}

std::optional<platform::ShellFileInfo> LinuxShellIcons::FileInfo(const std::string& path, std::uint32_t attributes,
                                                                 std::uint32_t) {
  const std::string name = NameOf(path);
  platform::ShellFileInfo info;
  if (attributes == kDirectoryAttribute) {
    info = FolderInfo();
  } else {
    gboolean uncertain = FALSE;
    const glib::Text type(g_content_type_guess(name.c_str(), nullptr, 0, &uncertain));
    info = InfoOfType(type.get());
    // A name without a type is most often a program's: day folders hold shortcuts to those too.
    if (uncertain) info.icon->iconNames = {text::ToLower(name), "application-x-executable"};
  }
  info.displayName = name;
  return info;
}

std::optional<platform::ShellFileInfo> LinuxShellIcons::FileInfo(std::uint64_t identifier, std::uint32_t,
                                                                 std::uint32_t) {
  if (identifier < kFirstFolderIdentifier) return std::nullopt;
  return FolderInfo();
}

}  // namespace dayvane
