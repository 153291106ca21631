// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <memory>
#include <set>

#include "app/IgnoreErrors.h"
#include "app/ShellServices.h"
#include "tests/scenario/Scenario.h"
#include "tests/windows/RecentDocuments.h"
#include "tests/windows/RegistryTree.h"
#include "windows/WindowsRegistry.h"
#include "windows/WindowsShell.h"
#include "windows/WindowsShellIcons.h"

namespace dayvane::testing {
namespace {

/// The disk as it is, but for what others have put into the user's Recent folder.
class FilesWithOwnRecent : public TestFiles {
 public:
  explicit FilesWithOwnRecent(const std::set<std::string>& shortcuts) : m_shortcuts(shortcuts) {}

  std::vector<platform::DirectoryEntry> List(const std::string& folder) override {
    auto entries = TestFiles::List(folder);
    if (folder == RecentFolder())
      std::erase_if(entries, [this](const auto& entry) { return !m_shortcuts.contains(entry.name); });
    return entries;
  }

 private:
  const std::set<std::string>& m_shortcuts;
};

/// An ending of documents with its class, as the program that opens them registers them.
class RegisteredType {
 public:
  RegisteredType(const std::string& ending, const std::string& className, const std::string& description,
                 const std::string& program)
      : m_ending(ending), m_class(className) {
    m_ending.SetText("", "", className);
    m_class.SetText("", "", description);
    m_class.SetText("DefaultIcon", "", "application-x-" + ending.substr(1) + ",0");
    m_class.SetText("shell\\open\\command", "", "\"" + program + "\" \"%1\"");
  }

 private:
  ClassTree m_ending;
  ClassTree m_class;
};

/// A user of Windows with the Recent folder that the shell keeps.
class WindowsScenario : public ScenarioDesktop {
 public:
  WindowsScenario() {
    m_user.AddKey("Software");
    for (const char* program : {"programs/letter-writer", "programs/sketcher"}) folder.Write(program, "");
  }
  ~WindowsScenario() override {
    for (const std::string& shortcut : m_shortcuts)
      IgnoreErrors([&] { SystemFiles()->Delete(RecentFolder() + "\\" + shortcut); });
  }

  platform::Desktop Start(ScriptedParts& scripted) override {
    m_run.reset();
    m_run = std::make_unique<Run>(m_shortcuts, m_user.Path());
    return {m_run->files,       m_run->shell,  m_run->icons,   m_run->registry,
            scripted.windowing, scripted.help, scripted.clock, scripted.dates};
  }

  void Open(const std::string& document, std::int64_t moment) override {
    m_shortcuts.insert(SplitPath(AddRecentDocument(document, moment)).fileName);
  }

  std::string Programs() const override { return folder.Path() + "\\programs"; }

 private:
  /// The parts that the program's main makes.
  struct Run {
    Run(const std::set<std::string>& shortcuts, const std::string& userRoot)
        : files(shortcuts),
          shell(files, [](const std::string&) {}),
          icons(shell),
          registry([](const std::string&) {}, userRoot) {}

    FilesWithOwnRecent files;
    WindowsShell shell;
    WindowsShellIcons icons;
    WindowsRegistry registry;
  };

  RegistryTree m_user;
  RegisteredType m_letter{".letter", "Dayvane.ScenarioLetter", "Letter", Programs() + "\\letter-writer"};
  RegisteredType m_sketch{".sketch", "Dayvane.ScenarioSketch", "Sketch", Programs() + "\\sketcher"};
  std::set<std::string> m_shortcuts;  ///< names of those that the scenario has put into the Recent folder
  std::unique_ptr<Run> m_run;
};

TEST(Scenario, ComesToTheSameOnWindowsAsOnEveryDesktop) {
  WindowsScenario desktop;
  EXPECT_EQ(LiveThroughScenario(desktop), ExpectedScenario(DAYVANE_SCENARIO));
}

}  // namespace
}  // namespace dayvane::testing
