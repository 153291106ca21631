// SPDX-License-Identifier: MIT
#include "tests/faults/FaultyDesk.h"

#include <algorithm>
#include <filesystem>

#include "links/ShellLinkFormat.h"
#include "linux/LinuxFileSystem.h"
#include "linux/files/NativePath.h"
#include "linux/files/UnfinishedFile.h"
#include "linux/recent/Moment.h"
#include "linux/recent/RecentState.h"
#include "linux/registry/SettingsText.h"
#include "views/FavoritesFile.h"

namespace dayvane::faults {

namespace fs = std::filesystem;

using testing::ReadFile;

namespace {

constexpr const char* kList = "recently-used.xbel";
constexpr const char* kSettings = "config/dayvane.ini";
constexpr const char* kEditor = "editor";

std::string Contents(const std::string& document) {
  return "This is " + document + ".\n";
}

/// "2026-11-20T08:00:00Z" as local time, "2026-11-20 08:00:00", and its day's folder.
std::string LocalTime(const std::string& moment) {
  return moment.substr(0, 10) + " " + moment.substr(11, 8);
}
std::string DayFolder(const std::string& moment) {
  return "Daily/" + moment.substr(0, 4) + "/November/" + moment.substr(8, 2);
}

bool IsWholeFavorites(const std::string& text) {
  favorites::ValueReader reader(text);
  while (!reader.AtEnd()) {
    favorites::Record record;
    for (favorites::Value& value : record) {
      if (reader.AtEnd()) return false;
      value = reader.Next();
    }
    const bool isWhole = std::holds_alternative<std::int64_t>(record[favorites::kDaysAccessed]) &&
                         std::holds_alternative<Date>(record[favorites::kLastAccessed]) &&
                         std::holds_alternative<std::int64_t>(record[favorites::kIconIndex]);
    if (!isWhole) return false;
  }
  return text.ends_with("\r\n");
}

bool IsWholeLink(const std::string& bytes) {
  const auto link = links::ParseShellLink(bytes);
  return link && !link->target.empty() && links::WriteShellLink(*link) == bytes;
}

/// The days counted of each document, as the data file has them.
std::map<std::string, std::int64_t> Counts(const std::string& file) {
  std::map<std::string, std::int64_t> counts;
  const std::string text = fs::exists(file) ? ReadFile(file) : "";
  for (favorites::ValueReader reader(text); !reader.AtEnd();) {
    favorites::Record record;
    for (favorites::Value& value : record) value = reader.Next();
    counts[favorites::TextOf(record[favorites::kTargetFileName])] +=
        static_cast<std::int64_t>(favorites::NumberOf(record[favorites::kDaysAccessed]));
  }
  return counts;
}

}  // namespace

FaultyDesk::FaultyDesk() {
  m_desktop.folder.Write(kEditor, "#!/bin/sh\n");
  m_desktop.registry.AddClass(".TXT", "Text", "text,0", "\"" + m_desktop.folder.Path() + "\\" + kEditor + "\" \"%1\"");
  m_desktop.folder.Write(kSettings,
                         "[Software\\Korvath\\Dayvane\\Options]\n"
                         "Favorites Threshold=2\nPurge Age=30\nTimer Interval=1\n");
}

void FaultyDesk::Open(const std::string& document, const std::string& moment) {
  if (!fs::exists(DocumentPath(document))) m_desktop.folder.Write("Documents/" + document, Contents(document));
  m_listed[document] = moment;
  m_opened[document][DayFolder(moment)] = moment;
  WriteList();
}

void FaultyDesk::FileLongAgo(const std::string& document) {
  platform::ShellLink link;
  link.target = files::FromNative(DocumentPath(document)).value();
  link.workingDirectory = m_desktop.folder.Path() + "\\Documents";
  m_desktop.folder.Write("program/Daily/2026/October/01/" + document + ".lnk", links::WriteShellLink(link));
}

void FaultyDesk::WriteList() const {
  std::string bookmarks;
  for (const auto& [document, moment] : m_listed)
    bookmarks += "<bookmark href=\"file://" + DocumentPath(document) + "\" added=\"" + moment + "\" modified=\"" +
                 moment + "\" visited=\"" + moment + "\"/>\n";
  const std::string finished = m_desktop.folder.Write(
      std::string(kList) + ".new", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel>\n" + bookmarks + "</xbel>\n");
  fs::rename(finished, m_desktop.folder / kList);
}

std::vector<std::string> FaultyDesk::Damage() const {
  std::vector<std::string> damage;
  for (const auto& entry : fs::recursive_directory_iterator(m_desktop.folder.Native())) {
    if (entry.is_directory()) continue;
    const std::string complaint = ComplaintAbout(entry.path());
    if (!complaint.empty()) damage.push_back(complaint + ": " + entry.path().string());
  }
  return damage;
}

std::string FaultyDesk::ComplaintAbout(const std::string& path) const {
  const std::string name = fs::path(path).filename();
  const std::string text = ReadFile(path);
  // What could not be removed; the next write in the folder does it.
  if (name == files::kUnfinishedName) return "";
  if (path == DocumentPath(name)) return text == Contents(name) ? "" : "a changed document";
  // One that could not be read is kept beside the new one.
  if (name == "Favorites.dat" || name.starts_with("Favorites.damaged"))
    return IsWholeFavorites(text) ? "" : "favorites in part";
  if (name == "Recent.state") return recent::ReadState(text).isDamaged ? "a state in part" : "";
  if (name.starts_with("dayvane.ini")) return registry::ParseSettings(text) ? "" : "settings in part";
  if (name.ends_with(".lnk")) return IsWholeLink(text) ? "" : "a shortcut in part";
  const bool isKnown = name == kList || name == kEditor || name == "ErrorLog.txt" || name == "EventLog.txt" ||
                       name == "Favorites.pending";
  return isKnown ? "" : "a strange file";
}

std::vector<std::string> FaultyDesk::Losses() const {
  std::vector<std::string> losses;
  auto counts = Counts(m_desktop.NativeFolder() + "/Favorites.dat");
  for (const auto& [document, days] : m_opened) {
    if (counts[document] != static_cast<std::int64_t>(days.size()))
      losses.push_back(document + ": " + std::to_string(counts[document]) + " days counted of " +
                       std::to_string(days.size()));
    for (const auto& [folder, moment] : days) {
      const std::string filed = m_desktop.NativeFolder() + "/" + folder + "/" + document + ".lnk";
      files::LinuxFileSystem disk;
      const auto status = disk.Status(files::FromNative(filed).value());
      if (!status || Format(status->written.local, "yyyy-mm-dd hh:nn:ss", m_desktop.dates) != LocalTime(moment))
        losses.push_back("not filed as of " + moment + ": " + filed);
    }
  }
  return losses;
}

/// The shell of the tests, with a Recent folder that the program keeps from the desktop's list.
class Session::Shell : public testing::TestShell {
 public:
  Shell(platform::FileSystem& files, const std::string& folder, recent::RecentFolder& recent)
      : TestShell(files, folder), m_recent(recent) {}

  void RefreshRecentFolder() override { m_recent.Refresh(); }
  void RecentFolderCaptured() override { m_recent.Captured(); }

 private:
  recent::RecentFolder& m_recent;
};

/// The user's settings are a file; the classes of documents are the test's.
class Session::Registry : public platform::Registry {
 public:
  Registry(LinuxRegistry& settings, testing::TestRegistry& classes) : m_settings(settings), m_classes(classes) {}

  std::unique_ptr<platform::RegistryKey> KeyFromRoot(std::uint32_t root) override {
    return m_settings.KeyFromRoot(root);
  }
  std::unique_ptr<platform::RegistryKey> KeyFromPath(const std::string& path) override {
    const bool isClass = path.starts_with("\\HKEY_CLASSES_ROOT");
    return isClass ? m_classes.KeyFromPath(path) : m_settings.KeyFromPath(path);
  }

 private:
  LinuxRegistry& m_settings;
  testing::TestRegistry& m_classes;
};

Session::Session(FaultyDesk& desk)
    : m_recent([&desk] { return std::chrono::nanoseconds(desk.m_desktop.clock.now.time_since_epoch()).count(); },
               {desk.m_desktop.folder / kList, desk.m_desktop.NativeRecent(),
                desk.m_desktop.NativeFolder() + "/Recent.state"},
               links::WriteShellLink, [](const std::string&) {}),
      m_shell(std::make_unique<Shell>(desk.m_desktop.files, desk.m_desktop.shell.recentFolder, m_recent)),
      m_settings(desk.m_desktop.folder / kSettings, [](const std::string&) {}),
      m_registry(std::make_unique<Registry>(m_settings, desk.m_desktop.registry)),
      m_parts{desk.m_desktop.files,     *m_shell,
              desk.m_desktop.icons,     *m_registry,
              desk.m_desktop.windowing, desk.m_desktop.help,
              desk.m_desktop.clock,     desk.m_desktop.dates},
      m_program(Main(m_parts, desk.m_desktop.Folder(), false, {})) {}

void Session::Poll() {
  FMain& window = *m_program.mainWindow;
  if (window.tmrMain.Enabled())
    window.tmrMain.Fire();
  else
    window.SetActive(true);
}

void Session::End() {
  m_program.mainWindow->form.RequestUnload(controls::UnloadMode::SystemSession);
}

}  // namespace dayvane::faults
