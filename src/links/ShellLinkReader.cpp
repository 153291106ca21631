// SPDX-License-Identifier: MIT
#include "links/ShellLinkReader.h"

#include <utility>

#include "links/ShellLinkFormat.h"

namespace dayvane::links {

ShellLinkReader::ShellLinkReader(platform::FileSystem& files, ReportEvent reportEvent)
    : m_files(files), m_reportEvent(std::move(reportEvent)) {}

platform::ReadLink ShellLinkReader::Read(const std::string& path) {
  const platform::FileContents contents = m_files.Read(path, kLargestLink + 1);
  if (contents.bytes.size() <= kLargestLink)
    if (auto link = ParseShellLink(contents.bytes)) return {std::move(*link), contents.written};
  ReportOnce(path, contents.written);
  return {{}, contents.written};
}

void ShellLinkReader::ReportOnce(const std::string& path, const platform::FileMoment& written) {
  const auto known = m_reported.find(path);
  if (known != m_reported.end() && known->second == written.nanoseconds) return;
  if (known != m_reported.end()) {
    known->second = written.nanoseconds;
  } else if (m_reported.size() < kMostReported) {
    m_reported.emplace(path, written.nanoseconds);
  } else {
    return;
  }
  m_reportEvent("ShellLinkReader.Read: Not a shell link: " + path);
}

}  // namespace dayvane::links
