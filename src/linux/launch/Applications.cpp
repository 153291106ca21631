// SPDX-License-Identifier: MIT
#include "linux/launch/Applications.h"

#include <cstring>
#include <filesystem>
#include <gio/gdesktopappinfo.h>
#include <unistd.h>
#include <utility>

#include "base/Text.h"

namespace dayvane::applications {

namespace {

std::optional<std::string> InPath(const char* program) {
  const glib::Text path(g_find_program_in_path(program));
  if (!path || path.get()[0] != '/') return std::nullopt;
  return std::string(path.get());
}

/// Flatpak starts everything by its own program. Beside "<exports>/share/applications/name.desktop" it exports a
/// command for each application: "<exports>/bin/identifier".
std::optional<std::string> ExportedCommand(GDesktopAppInfo* application, const char* identifier) {
  const std::filesystem::path file = g_desktop_app_info_get_filename(application);
  const auto exports = file.parent_path().parent_path().parent_path();
  std::string command = (exports / "bin" / identifier).string();
  if (access(command.c_str(), X_OK) != 0) return std::nullopt;
  return command;
}

/// The program that "env NAME=value … program" starts. Nothing where "env" has options.
std::optional<std::string> ProgramAfterEnv(const char* commandLine) {
  int count = 0;
  char** words = nullptr;
  if (commandLine == nullptr || !g_shell_parse_argv(commandLine, &count, &words, nullptr)) return std::nullopt;
  const glib::Texts owner(words);
  for (int i = 1; i < count; ++i) {
    if (words[i][0] == '-') return std::nullopt;
    if (std::strchr(words[i], '=') == nullptr) return InPath(words[i]);
  }
  return std::nullopt;
}

std::size_t CommandLength(GAppInfo* application) {
  const char* commandLine = g_app_info_get_commandline(application);
  return commandLine != nullptr ? std::strlen(commandLine) : 0;
}

}  // namespace

std::optional<std::string> ProgramOf(GAppInfo* application) {
  auto* desktop = G_IS_DESKTOP_APP_INFO(application) ? G_DESKTOP_APP_INFO(application) : nullptr;
  if (desktop != nullptr && g_desktop_app_info_get_filename(desktop) != nullptr) {
    const glib::Text flatpak(g_desktop_app_info_get_string(desktop, "X-Flatpak"));
    if (flatpak) return ExportedCommand(desktop, flatpak.get());
  }
  const char* executable = g_app_info_get_executable(application);
  if (executable == nullptr) return std::nullopt;
  const glib::Text name(g_path_get_basename(executable));
  if (std::strcmp(name.get(), "env") == 0) return ProgramAfterEnv(g_app_info_get_commandline(application));
  return InPath(executable);
}

ProgramIndex::ProgramIndex()
    : m_monitor(g_app_info_monitor_get()),
      m_connection(g_signal_connect(m_monitor.get(), "changed", G_CALLBACK(Changed), this)) {}

ProgramIndex::~ProgramIndex() {
  g_signal_handler_disconnect(m_monitor.get(), m_connection);
}

void ProgramIndex::Changed(GAppInfoMonitor* /*monitor*/, gpointer self) {
  static_cast<ProgramIndex*>(self)->m_isFilled = false;
}

GAppInfo* ProgramIndex::Find(const std::string& program) {
  Fill();
  const auto found = m_applications.find(program);
  return found == m_applications.end() ? nullptr : found->second.get();
}

bool ProgramIndex::HasName(const std::string& fileName) {
  Fill();
  return m_names.contains(text::ToLower(fileName));
}

void ProgramIndex::Fill() {
  if (std::exchange(m_isFilled, true)) return;
  m_applications.clear();
  m_names.clear();
  const glib::ObjectList all(g_app_info_get_all());
  for (GList* item = all.get(); item != nullptr; item = item->next) {
    auto* application = static_cast<GAppInfo*>(item->data);
    const auto program = ProgramOf(application);
    if (!program) continue;
    m_names.insert(text::ToLower(program->substr(program->rfind('/') + 1)));
    glib::Object<GAppInfo>& best = m_applications[*program];
    if (!best || CommandLength(application) < CommandLength(best.get()))
      best.reset(G_APP_INFO(g_object_ref(application)));
  }
}

glib::Object<GAppInfo> FindByProgram(const std::string& program) {
  ProgramIndex index;
  GAppInfo* found = index.Find(program);
  return glib::Object<GAppInfo>(found != nullptr ? G_APP_INFO(g_object_ref(found)) : nullptr);
}

}  // namespace dayvane::applications
