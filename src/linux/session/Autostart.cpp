// SPDX-License-Identifier: MIT
#include "linux/session/Autostart.h"

#include <array>
#include <string_view>
#include <utility>

#include "base/Error.h"
#include "linux/activation/ApplicationId.h"
#include "linux/files/NativePath.h"
#include "linux/files/XdgFolders.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::session {

namespace {

constexpr std::array kOldNames{"dayvane.desktop", "dayvane-autostart.desktop"};
constexpr std::size_t kLongestEntry = std::size_t{64} * 1024;  ///< bytes; entries have some hundred
constexpr const char* kGroup = G_KEY_FILE_DESKTOP_GROUP;

std::string EntryName() {
  return std::string(activation::kApplicationId) + ".desktop";
}

/// One argument of a command as entries quote it.
std::string Quoted(const std::string& argument) {
  std::string quoted = "\"";
  for (const char c : argument) {
    if (std::string_view("\"`$\\").find(c) != std::string_view::npos) quoted += '\\';
    quoted += c;
    if (c == '%') quoted += c;
  }
  return quoted + "\"";
}

std::string EntryFor(const std::string& program) {
  const glib::KeyFile entry(g_key_file_new());
  const auto set = [&](const char* key, const std::string& text) {
    g_key_file_set_string(entry.get(), kGroup, key, text.c_str());
  };
  set("Type", "Application");
  set("Version", "1.0");
  set("Name", "Dayvane");
  set("Comment", "Keep a record of the documents you open, from login on");
  set("Exec", Quoted(program));
  // An entry whose program was removed is passed over.
  set("TryExec", program);
  set("Icon", "dayvane");
  set("Terminal", "false");
  set("StartupNotify", "false");
  set("NoDisplay", "true");
  gsize length = 0;
  const glib::Text text(g_key_file_to_data(entry.get(), &length, nullptr));
  return {text.get(), length};
}

glib::KeyFile Parse(const std::string& bytes) {
  glib::KeyFile entry(g_key_file_new());
  g_key_file_load_from_data(entry.get(), bytes.data(), bytes.size(), G_KEY_FILE_NONE, nullptr);
  return entry;
}

bool StartsDayvane(GKeyFile* entry) {
  const glib::Text command(g_key_file_get_string(entry, kGroup, "Exec", nullptr));
  char** arguments = nullptr;
  if (!command || g_shell_parse_argv(command.get(), nullptr, &arguments, nullptr) == FALSE) return false;
  const glib::Texts owner(arguments);
  // Behind what sets it an environment, too.
  for (char** argument = arguments; *argument != nullptr; ++argument) {
    const glib::Text name(g_path_get_basename(*argument));
    if (std::string_view(name.get()) == "dayvane") return true;
  }
  return false;
}

/// Desktops switch an entry off by either key.
bool IsSwitchedOff(GKeyFile* entry) {
  constexpr const char* kGnomes = "X-GNOME-Autostart-enabled";
  return g_key_file_get_boolean(entry, kGroup, "Hidden", nullptr) != FALSE ||
         (g_key_file_has_key(entry, kGroup, kGnomes, nullptr) != FALSE &&
          g_key_file_get_boolean(entry, kGroup, kGnomes, nullptr) == FALSE);
}

}  // namespace

Autostart::Autostart(platform::FileSystem& files, std::string folder, std::string program)
    : m_files(files), m_folder(std::move(folder)), m_program(std::move(program)) {}

bool Autostart::IsOn() const {
  return Look(EntryName()) == Entry::On;
}

void Autostart::TurnOn() {
  Write(EntryFor(m_program));
  for (const char* name : kOldNames) Remove(name);
}

void Autostart::TurnOff() {
  Remove(EntryName());
  for (const char* name : kOldNames) Remove(name);
}

void Autostart::TakeOverOldNames() {
  for (const char* name : kOldNames) {
    if (Look(name) != Entry::On) continue;
    // As it is: it may start another copy of the program than this one.
    if (!IsOn()) Write(m_files.Read(m_files.Resolve(Path(name)), kLongestEntry).bytes);
    Remove(name);
  }
}

Autostart::Entry Autostart::Look(const std::string& name) const {
  const std::string path = Path(name);
  if (!m_files.Status(path)) return Entry::None;
  const std::string target = m_files.Resolve(path);
  const auto status = m_files.Status(target);
  if (!status) return Entry::None;  // a link to nothing
  if (status->kind != platform::EntryKind::File || status->size > kLongestEntry) return Entry::Foreign;
  const glib::KeyFile entry = Parse(m_files.Read(target, kLongestEntry).bytes);
  if (!StartsDayvane(entry.get())) return Entry::Foreign;
  return IsSwitchedOff(entry.get()) ? Entry::Off : Entry::On;
}

std::string Autostart::Path(const std::string& name) const {
  const std::string native = m_folder + "/" + name;
  const auto path = files::FromNative(native);
  if (!path) throw Error(kBadFileName, "The path cannot be used", native);
  return *path;
}

void Autostart::Write(const std::string& entry) {
  const std::string path = Path(EntryName());
  if (Look(EntryName()) == Entry::Foreign)
    throw Error(kFileAlreadyExists, "What starts with the session by this name is another program", path);
  xdg::MakeFolder(m_folder);
  m_files.Replace(m_files.Resolve(path), entry);
}

void Autostart::Remove(const std::string& name) {
  const Entry entry = Look(name);
  if (entry == Entry::On || entry == Entry::Off) m_files.Delete(Path(name));
}

std::string DefaultAutostartFolder() {
  return xdg::ConfigFolder(xdg::Environment::OfProcess()) + "/autostart";
}

}  // namespace dayvane::session
