// SPDX-License-Identifier: MIT
#include "linux/registry/DefaultApplication.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/Text.h"

namespace dayvane::registry {

namespace {

constexpr const char* kDefaults = "Default Applications";

/// The folders that hold such lists, by the environment.
std::vector<std::string> FoldersOfLists() {
  std::vector<std::string> folders{g_get_user_config_dir()};
  const auto add = [&](const char* const* all, const char* below) {
    for (; *all != nullptr; ++all) folders.push_back(std::string(*all) + below);
  };
  add(g_get_system_config_dirs(), "");
  folders.push_back(std::string(g_get_user_data_dir()) + "/applications");
  add(g_get_system_data_dirs(), "/applications");
  return folders;
}

/// "mimeapps.list", and those of the running desktop alone: "gnome-mimeapps.list".
std::vector<std::string> NamesOfLists() {
  std::vector<std::string> names{"mimeapps.list"};
  const char* desktops = g_getenv("XDG_CURRENT_DESKTOP");
  if (desktops == nullptr) return names;
  for (const auto desktop : text::Split(desktops, ':'))
    if (!desktop.empty()) names.push_back(text::ToLower(desktop) + "-mimeapps.list");
  return names;
}

/// Whether a list chooses the application for the type, or for one that this type is a kind of.
bool Chooses(GKeyFile* list, const std::string& type, const char* application) {
  const glib::Texts keys(g_key_file_get_keys(list, kDefaults, nullptr, nullptr));
  for (char** key = keys.get(); key != nullptr && *key != nullptr; ++key) {
    const glib::Texts chosen(g_key_file_get_string_list(list, kDefaults, *key, nullptr, nullptr));
    if (chosen && g_strv_contains(chosen.get(), application) && g_content_type_is_a(type.c_str(), *key)) return true;
  }
  return false;
}

bool IsChosen(const std::string& type, GAppInfo* application) {
  const char* id = g_app_info_get_id(application);
  if (id == nullptr) return false;
  for (const std::string& folder : FoldersOfLists())
    for (const std::string& name : NamesOfLists()) {
      const glib::KeyFile list(g_key_file_new());
      const bool isRead =
          g_key_file_load_from_file(list.get(), (folder + "/" + name).c_str(), G_KEY_FILE_NONE, nullptr) != 0;
      if (isRead && Chooses(list.get(), type, id)) return true;
    }
  return false;
}

/// "okular" for "/usr/bin/okular".
std::string_view FileName(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

/// Sources name a program by its title, its command or its entry; LibreOffice adds its version to its command.
bool IsCalled(GAppInfo* application, const std::string& program) {
  const auto isSame = [&](const char* name) {
    return name != nullptr && text::CompareIgnoringCase(FileName(name), FileName(program)) == 0;
  };
  const char* id = g_app_info_get_id(application);
  const std::string entry = id == nullptr ? "" : id;
  const std::string firstWord = program.substr(0, program.find(' '));
  const char* command = g_app_info_get_executable(application);
  const bool isCommand = command != nullptr && text::CompareIgnoringCase(FileName(command), FileName(firstWord)) == 0;
  return isSame(g_app_info_get_name(application)) || isSame(g_app_info_get_display_name(application)) ||
         text::CompareIgnoringCase(entry, program + ".desktop") == 0 || isCommand;
}

}  // namespace

glib::Object<GAppInfo> ApplicationFor(const std::string& type, const std::optional<std::string>& lastProgram) {
  glib::Object<GAppInfo> byDefault(g_app_info_get_default_for_type(type.c_str(), FALSE));
  if (!byDefault || !lastProgram || IsChosen(type, byDefault.get())) return byDefault;
  const glib::ObjectList all(g_app_info_get_all_for_type(type.c_str()));
  for (GList* item = all.get(); item != nullptr; item = item->next) {
    auto* application = static_cast<GAppInfo*>(item->data);
    if (IsCalled(application, *lastProgram)) return glib::Object<GAppInfo>(G_APP_INFO(g_object_ref(application)));
  }
  return byDefault;
}

}  // namespace dayvane::registry
