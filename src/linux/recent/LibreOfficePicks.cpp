// SPDX-License-Identifier: MIT
#include "linux/recent/LibreOfficePicks.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <utility>

#include "base/Error.h"
#include "base/Text.h"
#include "linux/files/FileDescriptor.h"
#include "linux/files/NativeFile.h"
#include "linux/files/SystemError.h"
#include "linux/files/XdgFolders.h"
#include "linux/recent/DocumentPath.h"
#include "linux/recent/PickList.h"
#include "linux/recent/StableHash.h"

namespace dayvane::recent {

namespace {

constexpr std::size_t kMostProfiles = 8;
constexpr std::int64_t kLargestSettings = 64 << 20;  ///< bytes; with pictures of all documents they have a few millions

using PickHashes = std::vector<std::uint64_t>;
using PickMemory = std::map<std::uint64_t, PickHashes>;  ///< by profile

struct Picks {
  std::vector<std::string> addresses;  ///< newest first
  Moment written = 0;
};

std::string ProfileMemory(std::uint64_t profile, const PickHashes& picks) {
  std::string memory = std::to_string(profile) + ":";
  for (std::size_t i = 0; i < picks.size(); ++i) memory += (i > 0 ? "," : "") + std::to_string(picks[i]);
  return memory;
}

std::string MemoryText(const PickMemory& memory) {
  std::string text;
  for (const auto& [profile, picks] : memory) text += (text.empty() ? "" : " ") + ProfileMemory(profile, picks);
  return text.empty() ? "-" : text;
}

bool ParsePicks(std::string_view text, PickHashes& picks) {
  if (text.empty()) return true;
  for (const std::string_view part : text::Split(text, ',')) {
    const auto hash = text::ToNumber<std::uint64_t>(part);
    if (!hash) return false;
    picks.push_back(*hash);
  }
  return true;
}

/// Nothing for a memory of another form, which is none.
std::optional<PickMemory> ParsePickMemory(std::string_view text) {
  PickMemory memory;
  if (text == "-") return memory;
  for (const std::string_view profile : text::Split(text, ' ')) {
    const auto parts = text::Split(profile, ':');
    const auto hash = parts.size() == 2 ? text::ToNumber<std::uint64_t>(parts[0]) : std::nullopt;
    if (!hash || !ParsePicks(parts[1], memory[*hash])) return std::nullopt;
  }
  return memory;
}

PickHashes HashesOf(const std::vector<std::string>& addresses) {
  PickHashes hashes;
  std::ranges::transform(addresses, std::back_inserter(hashes), StableHash);
  return hashes;
}

void FeedAll(int file, PickListReader& reader, const std::string& path) {
  constexpr std::size_t kAtOnce = 65536;
  std::string bytes(kAtOnce, '\0');
  for (;;) {
    const ssize_t count = read(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) files::Fail(path);
    if (count == 0) return;
    reader.Feed(std::string_view(bytes).substr(0, static_cast<std::size_t>(count)));
  }
}

/// Fails with an Error when the settings cannot be read, or are not whole.
Picks ReadPicks(const std::string& path) {
  // Links are followed: some users keep their settings elsewhere.
  const files::FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) files::Fail(path);
  if (status.st_size > kLargestSettings) throw Error(kInvalidFileFormat, "The settings are too large to be read", path);
  PickListReader reader;
  FeedAll(file.Number(), reader, path);
  auto addresses = reader.Finish();
  if (!addresses) throw Error(kInvalidFileFormat, "The settings are not whole", path);
  return {std::move(*addresses), files::MomentOf(status).nanoseconds};
}

void AddOpenings(const Picks& picks, PickedRange range, std::vector<Opening>& openings) {
  for (auto i = range.first; i < range.last; ++i)
    if (auto path = DocumentPath(picks.addresses[i]))
      openings.push_back({std::move(*path), picks.written, "LibreOffice", {}});
}

}  // namespace

std::string DefaultLibreOfficeFolder() {
  return xdg::ConfigFolder(xdg::Environment::OfProcess()) + "/libreoffice";
}

LibreOfficePicks::LibreOfficePicks(std::string nativeFolder) : m_folder(std::move(nativeFolder)) {}

void LibreOfficePicks::FindProfiles() {
  const auto now = FolderVersionOf(m_folder);
  if (now == m_listed) return;
  m_listed = now;
  m_profiles.clear();
  if (!now) return;
  for (const auto& entry : files::ListFolder(m_folder + "/."))
    if (entry.kind != platform::EntryKind::File)
      m_profiles.push_back({entry.name, m_folder + "/" + entry.name + "/user/registrymodifications.xcu", {}});
  std::ranges::sort(m_profiles, {}, &Profile::name);
  m_profiles.resize(std::min(m_profiles.size(), kMostProfiles));
}

bool LibreOfficePicks::IsDue() {
  const auto folder = FolderVersionOf(m_folder);
  if (!m_wasThere) m_wasThere = folder.has_value();
  if (folder != m_listed) return true;
  return std::ranges::any_of(m_profiles,
                             [](const Profile& profile) { return VersionOf(profile.path) != profile.read; });
}

Source::Reading LibreOfficePicks::Read(const std::string& memory) {
  FindProfiles();
  // What has come while the program was looking needs no memory to be new.
  const bool isAllNew = memory.empty() && m_wasThere == false;
  const auto before = isAllNew ? PickMemory() : ParsePickMemory(memory);
  PickMemory now = before.value_or(PickMemory());
  std::vector<Opening> openings;
  auto profiles = m_profiles;
  for (Profile& profile : profiles) {
    profile.read = VersionOf(profile.path);
    if (!profile.read) continue;
    const Picks picks = ReadPicks(profile.path);
    const auto hashes = HashesOf(picks.addresses);
    const auto [known, isNew] = now.try_emplace(StableHash(profile.name));
    const PickedRange newest{0, std::min<std::size_t>(1, hashes.size())};
    if (before) AddOpenings(picks, isNew ? newest : PickedSince(known->second, hashes), openings);
    known->second = hashes;
  }
  // Only now: a profile that could not be read keeps all of them due.
  m_profiles = std::move(profiles);
  return {std::move(openings), MemoryText(now)};
}

}  // namespace dayvane::recent
