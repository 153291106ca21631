// SPDX-License-Identifier: MIT
#include "tests/support/System.h"

#include <cstdio>
#include <filesystem>
#include <limits>
#include <map>
#include <stdexcept>
#include <vector>

#include "tests/support/TemporaryFolder.h"
#include "windows/WindowsFileSystem.h"
#include "windows/files/NativeFile.h"
#include "windows/files/NativePath.h"
#include "windows/files/WideText.h"

namespace dayvane::testing {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A moment of the year at which clocks change: the last (5) or n-th Sunday of a month, at an hour.
constexpr SYSTEMTIME Change(WORD month, WORD sunday, WORD hour) {
  return {0, month, 0, sunday, hour, 0, 0, 0};
}

/// `bias` in minutes that are added to local time, as the system counts; clocks are an hour ahead in summer.
TIME_ZONE_INFORMATION Zone(LONG bias, SYSTEMTIME toSummer, SYSTEMTIME toWinter) {
  TIME_ZONE_INFORMATION zone{};
  zone.Bias = bias;
  zone.DaylightBias = toSummer.wMonth == 0 ? 0 : -60;
  zone.DaylightDate = toSummer;
  zone.StandardDate = toWinter;
  return zone;
}

/// What holds in a zone from a moment on.
struct Era {
  std::int64_t since;  ///< seconds since 1970
  TIME_ZONE_INFORMATION rules;
};

constexpr std::int64_t kAlways = std::numeric_limits<std::int64_t>::min();

std::vector<Era> Always(LONG bias, SYSTEMTIME toSummer = {}, SYSTEMTIME toWinter = {}) {
  return {{kAlways, Zone(bias, toSummer, toWinter)}};
}

/// The zones that the tests are about, with their rules of the days that these are about. The system knows none of the
/// names, and a process cannot choose a zone for itself.
const std::map<std::string, std::vector<Era>>& Zones() {
  static const std::map<std::string, std::vector<Era>> zones{
      {"UTC", Always(0)},
      {"Europe/London", Always(0, Change(3, 5, 1), Change(10, 5, 2))},
      {"Europe/Berlin", Always(-60, Change(3, 5, 2), Change(10, 5, 3))},
      {"America/Los_Angeles", Always(480, Change(3, 2, 2), Change(11, 1, 2))},
      {"America/New_York", Always(300, Change(3, 2, 2), Change(11, 1, 2))},
      {"Asia/Beirut", Always(-120, Change(3, 5, 0), Change(10, 5, 0))},
      {"Etc/GMT+12", Always(720)},
      {"Pacific/Apia", {{kAlways, Zone(600, {}, {})}, {1325239200, Zone(-840, {}, {})}}},
      {"Pacific/Auckland", Always(-720, Change(9, 5, 2), Change(4, 1, 3))},
      {"Pacific/Kiritimati", Always(-840)},
      {"Pacific/Pago_Pago", Always(660)},
  };
  return zones;
}

/// The user's zone; nothing is the computer's own.
std::optional<std::string> theZone;

/// The rules of the user's zone at a moment, the last ones where none is given.
const TIME_ZONE_INFORMATION* TheRules(std::int64_t moment = std::numeric_limits<std::int64_t>::max()) {
  const TIME_ZONE_INFORMATION* rules = nullptr;
  if (theZone)
    for (const Era& era : Zones().at(*theZone))
      if (era.since <= moment) rules = &era.rules;
  return rules;
}

std::wstring Wide(const std::string& nativePath) {
  return files::ToNative(nativePath).value();
}

void SetTime(const std::string& nativePath, const FILETIME& written) {
  const files::FileHandle file(CreateFileW(Wide(nativePath).c_str(), FILE_WRITE_ATTRIBUTES, kShareAll, nullptr,
                                           OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT,
                                           nullptr));
  if (!file.IsOpen() || SetFileTime(file.Get(), nullptr, nullptr, &written) == 0)
    throw std::runtime_error("cannot set the time of " + nativePath);
}

bool MakeLink(const std::string& target, const std::string& nativePath, DWORD flags) {
  // Who is no administrator may make links in the developer mode alone, and only when asking for it.
  constexpr DWORD kUnprivileged = 2;  // SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE
  const std::wstring to = std::filesystem::path(files::ToWide(target).value()).make_preferred().wstring();
  const std::wstring link = Wide(nativePath);
  // Not every implementation that says so has made one.
  return CreateSymbolicLinkW(link.c_str(), to.c_str(), flags | kUnprivileged) != 0 && files::ReparseTagOf(link) != 0;
}

}  // namespace

std::unique_ptr<platform::FileSystem> SystemFiles() {
  return std::make_unique<files::WindowsFileSystem>([](std::int64_t moment) { return LocalTime(moment); });
}

std::string ProgramPath(const std::string& nativePath) {
  return files::FromNative(files::ToWide(nativePath).value()).value();
}

void SetWritten(const std::string& nativePath, const std::string& localTime, long nanoseconds) {
  int year{}, month{}, day{}, hour{}, minute{}, second{};
  if (std::sscanf(localTime.c_str(), "%d-%d-%d %d:%d:%d", &year, &month, &day, &hour, &minute, &second) != 6)
    throw std::runtime_error("no local time: " + localTime);
  const auto word = [](int number) { return static_cast<WORD>(number); };
  const SYSTEMTIME local{word(year), word(month), 0, word(day), word(hour), word(minute), word(second), 0};
  SYSTEMTIME universal{};
  FILETIME moment{};
  if (TzSpecificLocalTimeToSystemTime(TheRules(), &local, &universal) == 0 ||
      SystemTimeToFileTime(&universal, &moment) == 0)
    throw std::runtime_error("no local time: " + localTime);
  SetTime(nativePath, files::ToFileTime(files::SecondsOf(moment), nanoseconds));
}

void SetWritten(const std::string& nativePath, std::int64_t moment) {
  SetTime(nativePath, files::ToFileTime(moment));
}

std::chrono::local_seconds LocalTime(std::int64_t moment) {
  return files::LocalTime(moment, TheRules(moment));
}

void MakeFileLink(const std::string& target, const std::string& nativePath) {
  if (!MakeLink(target, nativePath, 0)) throw std::runtime_error("cannot make the link " + nativePath);
}

void MakeFolderLink(const std::string& target, const std::string& nativePath) {
  if (!MakeLink(target, nativePath, SYMBOLIC_LINK_FLAG_DIRECTORY))
    throw std::runtime_error("cannot make the link " + nativePath);
}

bool CanMakeLinks() {
  static const bool can = [] {
    const TemporaryFolder folder;
    return MakeLink("anywhere", folder / "link", 0);
  }();
  return can;
}

bool CanQuoteInNames() {
  return false;
}

void Hide(const std::string& nativePath) {
  if (SetFileAttributesW(Wide(nativePath).c_str(), FILE_ATTRIBUTE_HIDDEN) == 0)
    throw std::runtime_error("cannot hide " + nativePath);
}

LocalZone::LocalZone(const char* name) : m_before(theZone) {
  if (!Zones().contains(name)) throw std::runtime_error(std::string("no rules for the zone ") + name);
  theZone = name;
}

LocalZone::~LocalZone() {
  theZone = m_before;
}

}  // namespace dayvane::testing
