// SPDX-License-Identifier: MIT
#include "linux/LinuxShell.h"

#include "base/Error.h"
#include "base/Text.h"
#include "links/ShellLinkFormat.h"
#include "linux/LinuxClock.h"
#include "linux/files/NativePath.h"
#include "linux/files/XdgFolders.h"
#include "linux/recent/KdeActivities.h"
#include "linux/recent/LibreOfficePicks.h"
#include "linux/recent/ProgramLists.h"

namespace dayvane {

namespace {

/// The places that tell of opened documents besides the desktop's list, and what may be recorded.
recent::RecentFolder::Surroundings SurroundingsOf(const xdg::Environment& environment,
                                                  const recent::Exclusions& exclusions) {
  recent::RecentFolder::Surroundings surroundings;
  surroundings.rules = recent::RulesOf(environment);
  surroundings.rules.isExcluded = [&exclusions](const recent::Opening& opening) { return exclusions.Covers(opening); };
  surroundings.rules.areWishesKnown = [&exclusions] { return exclusions.AreKnown(); };
  surroundings.sources = recent::KnownProgramLists(environment.home, xdg::DataFolder(environment));
  surroundings.sources.push_back(std::make_unique<recent::KdeActivities>(recent::DefaultActivityDatabase()));
  surroundings.sources.push_back(std::make_unique<recent::LibreOfficePicks>(recent::DefaultLibreOfficeFolder()));
  return surroundings;
}

}  // namespace

LinuxShell::LinuxShell(platform::FileSystem& files, const std::string& dataFolder, const ReportEvent& reportEvent)
    : m_files(files),
      m_recentPath(dataFolder + "/Recent"),
      m_links(files, reportEvent),
      m_launcher(reportEvent),
      m_exclusions(recent::DefaultExclusionsFile(), xdg::Environment::OfProcess().home, reportEvent),
      m_recentFolder(LinuxClock::Nanoseconds, {recent::DefaultListPath(), m_recentPath, dataFolder + "/Recent.state"},
                     links::WriteShellLink, reportEvent, SurroundingsOf(xdg::Environment::OfProcess(), m_exclusions)),
      m_watch(recent::DefaultListPath(), [this] {
        m_deferred.AfterWork([this] {
          m_exclusions.Refresh();
          m_recentFolder.RememberOpenings();
        });
      }) {}

std::string LinuxShell::SpecialFolderPath(int number) {
  if (number != platform::kRecentFolder)
    throw Error(kPathNotFound, "No special folder of number " + std::to_string(number));
  const auto path = files::FromNative(m_recentPath);
  if (!path) throw Error(kBadFileName, "The path of the Recent folder cannot be used", m_recentPath);
  return *path;
}

void LinuxShell::CreateShellLink(const std::string& path, const platform::ShellLink& link) {
  // The program's records lose capitals; in a link other programs look for them.
  platform::ShellLink written = link;
  const auto native = files::ResolveNative(link.target);
  const auto target = native ? files::FromNative(*native) : std::nullopt;
  if (target && text::CompareIgnoringCase(*target, link.target) == 0) written.target = *target;
  // Not flushed: a first capture writes thousands of links.
  m_files.ReplaceUnflushed(path, links::WriteShellLink(written));
}

}  // namespace dayvane
