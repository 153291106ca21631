// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "app/Date.h"
#include "links/ShellLinkReader.h"
#include "platform/Desktop.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestFiles.h"

namespace dayvane::testing {

/// A clock that stands until it is set.
class TestClock : public platform::Clock {
 public:
  std::chrono::local_seconds Now() override { return now; }
  void Set(int year, unsigned month, unsigned day, int hour = 12, int minute = 0, int second = 0);

  std::chrono::local_seconds now{};
};

/// A registry in memory, with the keys of a full path such as "\HKEY_CURRENT_USER\Software".
class TestRegistry : public platform::Registry {
 public:
  TestRegistry() { keys["\\HKEY_CURRENT_USER\\Software"]; }

  std::unique_ptr<platform::RegistryKey> KeyFromRoot(std::uint32_t root) override;
  std::unique_ptr<platform::RegistryKey> KeyFromPath(const std::string& path) override;

  /// The values of the program's own settings below a name such as "Options"; made when they are not there.
  std::map<std::string, std::string>& Settings(const std::string& name) { return keys[kProduct + name]; }
  void EraseSettings(const std::string& name) { keys.erase(kProduct + name); }

  /// Describes a document class: extension (".ODT"), description, default icon and open command; empty ones are left
  /// out.
  void AddClass(const std::string& extension, const std::string& description, const std::string& icon = {},
                const std::string& command = {});

  std::map<std::string, std::map<std::string, std::string>> keys;
  std::string unwritable;  ///< adding below this path fails
  bool refusesValues = false;

 private:
  static inline const std::string kProduct = "\\HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane\\";
};

/// Message boxes that answer as told and keep what they were asked; nothing else is shown.
class TestWindowing : public platform::Windowing {
 public:
  platform::MessageAnswer ShowMessage(const platform::Message& message) override;
  void Beep() override { ++beeps; }
  void ProcessPendingMessages() override { pending(); }
  void ShowModal(controls::Form& form) override { showModal(form); }
  void ShowAbout(const platform::About& about) override;
  void PostMessage(controls::Form& form, int message) override;
  void SetForegroundWindow(controls::Form&) override { happenings.emplace_back("foreground"); }
  void PopupMenu(controls::Form&, controls::Menu& menu, double x, double y) override;
  void PopupMenuAtMouse(controls::Form&, controls::Menu& menu, int defaultItem) override;

  /// Texts of the message boxes shown, in order.
  std::vector<std::string> Texts() const;

  std::vector<platform::Message> messages;
  platform::MessageAnswer answer = platform::MessageAnswer::Yes;
  std::function<void()> whileAsked = [] {};  ///< what happens while a message box waits
  int beeps = 0;
  std::vector<platform::About> abouts;
  bool noAbout = false;                 ///< the about box cannot be shown
  bool noPopup = false;                 ///< no menu can be popped up
  std::vector<std::string> happenings;  ///< what was asked of the desktop, one word each, in order
  std::vector<int> posted;
  controls::Menu* popupMenu = nullptr;
  double popupX = 0;
  double popupY = 0;
  int popupDefault = -1;
  std::function<void()> pending = [] {};
  std::function<void(controls::Form&)> showModal = [](controls::Form&) {};
};

/// The shell over real files: a Recent folder in the test's folder and real shortcuts.
class TestShell : public platform::Shell {
 public:
  TestShell(platform::FileSystem& files, std::string recentFolder);

  std::string SpecialFolderPath(int number) override;
  void RefreshRecentFolder() override { refresh(); }
  void RecentFolderCaptured() override { ++captured; }
  platform::ReadLink ReadShellLink(const std::string& path) override { return m_reader.Read(path); }
  void CreateShellLink(const std::string& path, const platform::ShellLink& link) override;
  int Open(const std::string& target, const std::string& workingDirectory, std::int32_t showCommand) override;
  void Run(const std::string& commandLine) override;
  std::string WindowsFolder() override { return "C:\\WINDOWS"; }
  std::string DisplayPath(const std::string& path) override { return displayPath(path); }

  std::string recentFolder;
  bool hasRecentFolder = true;  ///< else asking for it fails
  std::function<void()> refresh = [] {};
  std::function<std::string(const std::string&)> displayPath = [](const std::string& path) { return path; };
  int captured = 0;
  int openResult = 42;
  bool cannotLaunch = false;        ///< opening and running fail
  std::vector<std::string> opened;  ///< "target|working folder|show command"
  std::vector<std::string> commandLines;
  std::vector<std::string> reported;  ///< what the reader had to tell the event log

 private:
  platform::FileSystem& m_files;
  links::ShellLinkReader m_reader;
};

/// Knows every path and every identifier but 666; an icon is named after the last part of the path.
class TestIcons : public platform::ShellIcons {
 public:
  std::uint64_t SpecialFolderIdentifier(int number) override { return 1000U + static_cast<unsigned>(number); }
  std::optional<platform::ShellFileInfo> FileInfo(const std::string& path, std::uint32_t attributes,
                                                  std::uint32_t flags) override;
  std::optional<platform::ShellFileInfo> FileInfo(std::uint64_t identifier, std::uint32_t attributes,
                                                  std::uint32_t flags) override;

  std::vector<std::string> asked;  ///< "path or identifier|attributes|flags in hexadecimal"
  bool hasIcons = true;
};

class TestHelp : public platform::Help {
 public:
  void ShowHelp(const std::string& helpFile, int command, int contextId) override;

  std::vector<std::string> shown;  ///< "file|command|context"
  bool noViewer = false;           ///< there is nothing to show help with
};

/// A desktop over a temporary folder: real files and shortcuts, scripted message boxes, clock and shell. The clock
/// stands at noon of 21 November 2026.
class TestDesktop {
 public:
  TestDesktop();

  /// The program folder, in the program's form.
  std::string Folder() const { return folder.Path() + "\\program"; }
  std::string NativeFolder() const { return folder / "program"; }
  std::string NativeRecent() const { return folder / "recent"; }

  /// Puts a shortcut to a document into the Recent folder, last written at a local time "2026-11-21 09:15:00".
  /// Returns the shortcut's native path.
  std::string OpenDocument(const std::string& target, const std::string& localTime);

  /// The lines of a log in the program folder, without their date and time; empty when there is no log.
  std::vector<std::string> LogLines(const std::string& log) const;

  TemporaryFolder folder;
  TestFiles files;
  TestShell shell;
  TestIcons icons;
  TestRegistry registry;
  TestWindowing windowing;
  TestHelp help;
  TestClock clock;
  platform::DateConventions dates;
  platform::Desktop desktop;
};

/// Writes a shortcut file with these contents.
void WriteShortcut(const std::string& nativePath, const platform::ShellLink& link, const std::string& localTime);

}  // namespace dayvane::testing
