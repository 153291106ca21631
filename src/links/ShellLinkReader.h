// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "base/ReportEvent.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

namespace dayvane::links {

/// Reads shell link files for a program that reads all of them again every second: each with one opening, and with at
/// most one event for each version of a file that is not a link.
class ShellLinkReader {
 public:
  /// A link takes a few kilobytes. A larger file is not a shell link, and no more of it is read.
  static constexpr std::size_t kLargestLink = 1 << 20;

  /// So many files that are not links are remembered, so that foreign files cannot make the memory grow. Further ones
  /// are passed over in silence: forgetting older ones instead would report all of them again at every poll.
  static constexpr std::size_t kMostReported = 1024;

  ShellLinkReader(platform::FileSystem& files, ReportEvent reportEvent);

  /// The link in a file, with the moment that the file was written. A file that is not a shell link has empty fields;
  /// it is reported once, and again when it is written anew. A file that cannot be opened is the file system's Error.
  platform::ReadLink Read(const std::string& path);

 private:
  void ReportOnce(const std::string& path, const platform::FileMoment& written);

  platform::FileSystem& m_files;
  ReportEvent m_reportEvent;
  std::unordered_map<std::string, std::int64_t> m_reported;  ///< path, moment it was written (nanoseconds)
};

}  // namespace dayvane::links
