// SPDX-License-Identifier: MIT
#include "linux/registry/SettingsFile.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <unistd.h>
#include <utility>

#include "app/IgnoreErrors.h"
#include "base/Error.h"
#include "linux/LinuxFileSystem.h"
#include "linux/files/NativePath.h"
#include "linux/files/SystemError.h"
#include "linux/files/XdgFolders.h"

namespace dayvane::registry {

namespace {

constexpr std::size_t kLargestFile = 1 << 20;  // what no set of settings ever reaches

std::string ParentOf(const std::string& nativePath) {
  return nativePath.substr(0, nativePath.rfind('/'));
}

/// The name that follows the file's own, ".damaged", or the next one that is free.
std::string FreeNameBeside(const std::string& nativePath) {
  files::LinuxFileSystem disk;
  std::string name = nativePath + ".damaged";
  for (int number = 2; disk.Status(files::FromNative(name).value_or("")); ++number)
    name = nativePath + ".damaged-" + std::to_string(number);
  return name;
}

void Merge(SettingsKeys& keys, const SettingsKeys& newer) {
  for (const auto& [path, values] : newer)
    for (const auto& [name, text] : values) keys[path][name] = text;
}

}  // namespace

SettingsFile::SettingsFile(std::string nativePath, ReportEvent reportEvent)
    : m_nativePath(std::move(nativePath)), m_reportEvent(std::move(reportEvent)) {}

bool SettingsFile::HasKey(std::string_view path) {
  Refresh();
  const std::string below = std::string(path) + "\\";
  const auto covers = [&](const std::string& key) {
    return text::CompareIgnoringCase(key, path) == 0 ||
           (key.size() > below.size() &&
            text::CompareIgnoringCase(std::string_view(key).substr(0, below.size()), below) == 0);
  };
  for (const SettingsKeys* keys : {&m_changes, &m_keys, &m_thisRuns})
    for (const auto& [key, values] : *keys)
      if (!values.empty() && covers(key)) return true;
  return std::any_of(m_addedKeys.begin(), m_addedKeys.end(), covers);
}

std::optional<std::string> SettingsFile::Value(std::string_view path, std::string_view name) {
  Refresh();
  for (const SettingsKeys* keys : {&m_changes, &m_keys, &m_thisRuns})
    if (const std::string* text = FindSetting(*keys, path, name)) return *text;
  return std::nullopt;
}

void SettingsFile::Hold(std::string_view path, std::string_view name, const std::string& text, bool mustReachDisk) {
  if (Value(path, name) == text) return;
  m_changes[std::string(path)][std::string(name)] = text;
  m_mustReachDisk = m_mustReachDisk || mustReachDisk;
  if (m_holders == 0) Store();
}

void SettingsFile::Store() {
  const SettingsKeys changes = std::exchange(m_changes, {});
  const bool mustReachDisk = std::exchange(m_mustReachDisk, false);
  if (changes.empty()) return;
  try {
    Replace(changes);
    m_thisRuns.clear();
  } catch (const Error& error) {
    if (mustReachDisk) throw;
    KeepForThisRun(changes, error.what());
  }
}

void SettingsFile::Replace(const SettingsKeys& changes) {
  Refresh();
  SettingsKeys changed = m_keys;
  for (const auto& [path, values] : m_thisRuns) changed[path].insert(values.begin(), values.end());
  Merge(changed, changes);
  if (changed == m_keys) return;

  xdg::MakeFolder(ParentOf(m_nativePath));
  const std::string file = FilePath();
  if (m_damaged) KeepDamagedFile(file);
  std::string text = WriteSettings(changed, m_text);
  files::LinuxFileSystem().Replace(file, text);
  m_text = std::move(text);
  m_keys = std::move(changed);
  IgnoreErrors([&] { m_version = files::LinuxFileSystem().Status(file); });  // or it is read again
}

void SettingsFile::KeepForThisRun(const SettingsKeys& added, const std::string& reason) {
  Merge(m_thisRuns, added);
  if (std::exchange(m_reportedUnstored, true)) return;
  m_reportEvent("The settings cannot be stored; those that are missing have their defaults: " + reason);
}

/// The file's path in the program's form. A symbolic link, which people use to keep their settings elsewhere, is
/// replaced at its end and not by a file in its own place.
std::string SettingsFile::FilePath() const {
  std::error_code ignored;
  const std::string real = std::filesystem::canonical(m_nativePath, ignored).string();
  auto path = files::FromNative(real.empty() ? m_nativePath : real);
  if (!path) throw Error(kBadFileName, "The settings file has a name that cannot be spelled", m_nativePath);
  return *path;
}

void SettingsFile::Refresh() {
  const std::string path = FilePath();
  std::optional<platform::FileStatus> found;
  const bool isKnown = IgnoreErrors([&] { found = files::LinuxFileSystem().Status(path); });
  if (isKnown && found == m_version) return;
  m_version = found;
  m_text.clear();
  m_keys.clear();
  // A file whose status cannot be read counts as damaged: its settings are unknown, and must not be overwritten.
  m_damaged = !isKnown;
  if (!found) return;
  Read(path);
  if (m_damaged) m_reportEvent("The settings file is damaged and counts as empty: " + m_nativePath);
}

void SettingsFile::Read(const std::string& path) {
  std::string bytes;
  // So does a folder in its place, and a file that may not be read.
  const bool isRead = IgnoreErrors([&] { bytes = files::LinuxFileSystem().Read(path, kLargestFile + 1).bytes; });
  auto keys = isRead && bytes.size() <= kLargestFile ? ParseSettings(bytes) : std::nullopt;
  m_damaged = !keys;
  if (m_damaged) return;
  m_keys = std::move(*keys);
  m_text = std::move(bytes);
}

void SettingsFile::KeepDamagedFile(const std::string& path) {
  const std::string native = files::ToNative(path).value();
  const std::string kept = FreeNameBeside(native);
  // A second name leaves the file in its place until the new one is whole. A folder, and a file on a disk that knows no
  // second names, is moved.
  if (link(native.c_str(), kept.c_str()) != 0 && rename(native.c_str(), kept.c_str()) != 0) files::Fail(native);
  m_damaged = false;
}

}  // namespace dayvane::registry
