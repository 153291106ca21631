// SPDX-License-Identifier: MIT
#include "windows/launch/Shortcuts.h"

#include <utility>

#include "app/IgnoreErrors.h"
#include "links/ShellLinkFormat.h"
#include "windows/files/Variables.h"
#include "windows/files/WideText.h"
#include "windows/launch/Paths.h"
#include "windows/launch/ShellsLinks.h"

namespace dayvane::launch {

namespace {

using platform::ReadLink;
using platform::ShellLink;

/// Foreign files must not fill the memory.
constexpr std::size_t kMostAsked = 1024;

/// With the variables of the environment, which a link may lead through.
std::string Expanded(const std::string& text) {
  const auto wide = files::ToWide(text);
  const auto expanded = wide ? files::ExpandVariables(*wide) : std::nullopt;
  return expanded ? files::FromWide(*expanded).value_or(text) : text;
}

/// The shell's form of a link has more than the program's, which lets the shell find a target that was moved. But the
/// shell may spell a target in its own way, or lose letters; and it asks the target's disk.
std::string BytesFor(const ShellLink& link) {
  if (IsAtHand(link.target)) {
    auto bytes = WriteByShell(link);
    if (bytes && links::ParseShellLink(*bytes) == link) return std::move(*bytes);
  }
  return links::WriteShellLink(link);
}

}  // namespace

Shortcuts::Shortcuts(platform::FileSystem& files, ReportEvent reportEvent)
    : m_files(files), m_links(files, std::move(reportEvent)) {}

ReadLink Shortcuts::Read(const std::string& path) {
  ReadLink read = m_links.Read(path);
  std::string target = PlainPath(read.link.target);
  if (!IsPath(target)) target = Expanded(target);
  if (!IsPath(target)) target = AskShell(path, read);
  if (IsPath(target)) read.link.target = std::move(target);
  return read;
}

std::string Shortcuts::AskShell(const std::string& path, const ReadLink& version) {
  const auto known = m_asked.find(path);
  const bool isKnown = known != m_asked.end() && known->second.version.link == version.link &&
                       known->second.version.written == version.written;
  if (isKnown) return known->second.target;
  if (m_asked.size() >= kMostAsked) m_asked.clear();
  Asked asked{version, {}};
  IgnoreErrors([&] {
    const std::string bytes = m_files.Read(path, links::ShellLinkReader::kLargestLink).bytes;
    // What the program's own reader takes for no link is none, whatever it is to the shell.
    if (links::ParseShellLink(bytes)) asked.target = PathByShell(bytes);
  });
  return m_asked.insert_or_assign(path, std::move(asked)).first->second.target;
}

void Shortcuts::Write(const std::string& path, const ShellLink& link) {
  m_files.ReplaceUnflushed(path, BytesFor(link));
}

}  // namespace dayvane::launch
