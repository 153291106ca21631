// SPDX-License-Identifier: MIT
#include <ctime>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <optional>

#include "linux/LinuxFileSystem.h"
#include "linux/LinuxRegistry.h"
#include "linux/LinuxShell.h"
#include "linux/LinuxShellIcons.h"
#include "linux/files/NativePath.h"
#include "linux/glib/GlibHandles.h"
#include "tests/linux/EnvironmentVariable.h"
#include "tests/linux/PrivateDesktop.h"
#include "tests/scenario/Scenario.h"

namespace dayvane::testing {
namespace {

namespace fs = std::filesystem;

/// A user of a Linux desktop, whose home is the scenario's folder. Its classes are those of the private desktop.
class LinuxScenario : public ScenarioDesktop {
 public:
  platform::Desktop Start(ScriptedParts& scripted) override {
    m_run.reset();
    m_run = std::make_unique<Run>(folder);
    return {m_run->files,       m_run->shell,  m_run->icons,   m_run->registry,
            scripted.windowing, scripted.help, scripted.clock, scripted.dates};
  }

  /// As GTK does: the whole list anew, put in place by renaming.
  void Open(const std::string& document, std::int64_t moment) override {
    m_openings[files::ToNative(document).value()] = moment;
    std::string list = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\">\n";
    for (const auto& [path, opened] : m_openings) list += Bookmark(path, opened);
    folder.Write("share/recently-used.xbel.new", list + "</xbel>\n");
    fs::rename(folder / "share/recently-used.xbel.new", folder / "share/recently-used.xbel");
  }

  std::string Programs() const override { return files::FromNative(desktop::Folder() + "/bin").value(); }

 private:
  /// The parts that the program's main makes.
  struct Run {
    explicit Run(const TemporaryFolder& folder)
        : shell(files, folder / "record", [](const std::string&) {}),
          icons(shell),
          registry(folder / "config/dayvane/dayvane.ini", [](const std::string&) {}) {
      registry.AskForPrograms([this](const std::string& type) { return shell.LastProgramFor(type); });
    }

    files::LinuxFileSystem files;
    LinuxShell shell;
    LinuxShellIcons icons;
    LinuxRegistry registry;
  };

  static std::string Bookmark(const std::string& path, std::int64_t opened) {
    const glib::Text address(g_filename_to_uri(path.c_str(), nullptr, nullptr));
    const glib::Text href(g_markup_escape_text(address.get(), -1));
    const auto seconds = static_cast<std::time_t>(opened);
    struct tm parts {};
    char time[sizeof "2021-01-28T09:15:00Z"];
    std::strftime(time, sizeof time, "%Y-%m-%dT%H:%M:%SZ", gmtime_r(&seconds, &parts));
    return std::string("  <bookmark href=\"") + href.get() + "\" added=\"" + time + "\" modified=\"" + time +
           "\" visited=\"" + time + "\"/>\n";
  }

  EnvironmentVariable m_home{"HOME", folder.Native()};
  EnvironmentVariable m_data{"XDG_DATA_HOME", folder / "share"};
  EnvironmentVariable m_config{"XDG_CONFIG_HOME", folder / "config"};
  std::map<std::string, std::int64_t> m_openings;  ///< by native path
  std::unique_ptr<Run> m_run;
};

TEST(Scenario, ComesToTheSameOnLinuxAsOnEveryDesktop) {
  LinuxScenario desktop;
  EXPECT_EQ(LiveThroughScenario(desktop), ExpectedScenario(DAYVANE_SCENARIO));
}

}  // namespace
}  // namespace dayvane::testing
