// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "linux/glib/GlibHandles.h"
#include "linux/launch/FileManager.h"
#include "linux/launch/StartApplication.h"
#include "platform/Shell.h"

namespace dayvane::launch {

using enum platform::OpenResult;

/// Opens documents, programs, folders and web addresses with the desktop's default applications. Nothing here waits
/// for an application. Needs the GLib main loop for what happens later.
class Launcher {
 public:
  /// `reportEvent` takes failures that come to light after a call has returned.
  explicit Launcher(ReportEvent reportEvent);
  Launcher(const Launcher&) = delete;
  Launcher& operator=(const Launcher&) = delete;
  ~Launcher();

  /// Opens a document or a folder, by its path in the program's form, or a web address. The working folder, in the
  /// same form, may be empty or missing. A file that is the program of an installed application is run: a day's list
  /// holds links to the programs that opened its documents.
  int Open(const std::string& target, const std::string& workingFolder);

  /// Runs one of the program's two explorer command lines: "…\EXPLORER.EXE /n,/e,/root,<folder>" and
  /// "…\EXPLORER.EXE /n,<folder>". Both show the folder; whether a tree stands beside it is the file manager's choice.
  /// The folder may be in the program's form or in the one that a person reads; for a file it is the folder that holds
  /// the file. Fails with an Error when it does not exist, when nothing can show it, or when the command line is
  /// another one.
  void Run(const std::string& commandLine);

  /// The path as a person reads it: "/home/ana/Report.odt" for a path on drive "Z:", any other path as it is.
  static std::string DisplayPath(const std::string& path);

 private:
  int OpenFile(const std::string& native, const std::string& workingFolder);
  int OpenAddress(const std::string& address, const std::string& scheme, const std::string& workingFolder);
  int Start(GAppInfo* application, const std::string& uri, const std::string& workingFolder);

  ReportEvent m_reportEvent;
  glib::Object<GCancellable> m_pending;
  FileManager m_fileManager;
};

}  // namespace dayvane::launch
