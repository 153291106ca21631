// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/FileSystem.h"

/// What the program's tests take of the system that they run on and the standard library does not have. One file for
/// each system stands behind it: linux/System.cpp, windows/System.cpp. What not every system can do is no matter for
/// this header; it is tested in the folder of the system that can, tests/linux.
namespace dayvane::testing {

/// The disk as the system's desktop gives it to the program.
std::unique_ptr<platform::FileSystem> SystemFiles();

/// The program's path for a native one.
std::string ProgramPath(const std::string& nativePath);

/// Sets the last-written time of a file, or of a symbolic link itself, to a local time "2026-11-20 14:03:27", with a
/// fraction in nanoseconds, of which not every disk keeps more than hundreds.
void SetWritten(const std::string& nativePath, const std::string& localTime, long nanoseconds = 0);

/// The same for a moment, in seconds since 1970.
void SetWritten(const std::string& nativePath, std::int64_t moment);

/// What the user's clock shows at a moment, in seconds since 1970.
std::chrono::local_seconds LocalTime(std::int64_t moment);

/// Make a symbolic link to a file or to a folder, whether or not it is there.
void MakeFileLink(const std::string& target, const std::string& nativePath);
void MakeFolderLink(const std::string& target, const std::string& nativePath);

/// Whether the system lets this user make links. Where it does not, a test that needs one is skipped and says so.
bool CanMakeLinks();
inline constexpr const char* kNoLinks = "this system lets this user make no symbolic links";

/// Whether the name of a file may hold quotation marks.
bool CanQuoteInNames();
inline constexpr const char* kNoQuotes = "this system has no quotation marks in names";

/// Hides what has a name that begins with a dot, where that alone does not.
void Hide(const std::string& nativePath);

/// While it lives, the user's local time is that of a zone such as "Europe/Berlin" or "UTC".
class LocalZone {
 public:
  explicit LocalZone(const char* name);
  LocalZone(const LocalZone&) = delete;
  LocalZone& operator=(const LocalZone&) = delete;
  ~LocalZone();

 private:
  std::optional<std::string> m_before;
};

}  // namespace dayvane::testing
