// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestDesktop.h"

/// Some weeks of a user's life with the program, the same on every desktop. What comes of them is one text, the file
/// expected.txt beside this one, to which the test of each desktop compares: so no desktop can drift from another.
namespace dayvane::testing {

/// What the scenario scripts itself, since no user is there and no time passes. Dates are written by fixed conventions,
/// because not every computer has the words of every language.
struct ScriptedParts {
  TestWindowing windowing;
  TestHelp help;
  TestClock clock;
  platform::DateConventions dates;
};

/// A user's computer without the program: the desktop's own parts, and what other programs do there.
///
/// It has classes for two endings of documents. ".letter" is described as "Letter", has the icon 0 of
/// "application-x-letter" and is opened by a program of the file name "letter-writer"; ".sketch" is "Sketch", has that
/// of "application-x-sketch" and "sketcher".
class ScenarioDesktop {
 public:
  virtual ~ScenarioDesktop() = default;

  /// The desktop's own parts anew, as each start of the program makes them. Those of the start before are gone.
  virtual platform::Desktop Start(ScriptedParts& scripted) = 0;

  /// What a program does when it opens a document, by its path in the program's form, at a moment in seconds since
  /// 1970.
  virtual void Open(const std::string& document, std::int64_t moment) = 0;

  /// The folder with both programs, in the program's form.
  virtual std::string Programs() const = 0;

  TemporaryFolder folder;  ///< of the scenario: its documents, and what the program keeps
};

/// Lives through the scenario, and returns what the program shows and keeps at its turns. Folders are named by what
/// they are for ("<documents>"), their separators are "/".
///
/// Three things are left out, because the desktops differ in them by nature. When a program's shortcut was made is told
/// by the disk, by the system's clock and not by the scripted one. Folders of documents have no capitals: a shell's
/// link has a working folder, which is kept in small letters, and the link to a document of the desktop's list has
/// none, so that its folder is spelled as on the disk. And nothing is opened on two days while nobody captures: where
/// the shell itself keeps the Recent folder, the later opening has replaced the earlier one, which the list's memory
/// still has.
std::string LiveThroughScenario(ScenarioDesktop& desktop);

/// The text in the file of this path.
std::string ExpectedScenario(const std::string& nativePath);

}  // namespace dayvane::testing
