// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "platform/FileSystem.h"

namespace dayvane::platform {

/// What a shell link holds. Texts that the link does not carry are empty.
struct ShellLink {
  std::string target;            ///< full path in the program's form ("Z:\home\ana\Report.odt")
  std::string workingDirectory;  ///< full path of a folder
  std::string arguments;
  std::string iconFile;
  std::int32_t iconIndex = 0;
  std::int32_t showCommand = 1;  ///< 1 normal window, 3 maximised, 7 minimised ([MS-SHLLINK] 2.1)
  bool targetIsFolder = false;   ///< as its writer knew it

  bool operator==(const ShellLink&) const = default;
};

/// A link as read from its file, with the moment that the same version of the file was written.
struct ReadLink {
  ShellLink link;
  FileMoment written;
};

/// Number of the user's Recent folder among the shell's special folders (CSIDL_RECENT).
inline constexpr int kRecentFolder = 8;

/// Results of opening a document that matter (ShellExecute, SE_ERR_…); above 32 it was opened, and other values
/// are other failures.
enum OpenResult : int {
  kSeFileNotFound = 2,
  kSePathNotFound = 3,
  kSeAccessDenied = 5,
  kSeAssociationIncomplete = 27,  ///< there is a program for the document, but it could not be started
  kSeNoAssociation = 31,
  kSeOpened = 42,
};

/// The desktop's shell. Failures are Errors, except where a result code is given.
class Shell {
 public:
  virtual ~Shell() = default;

  /// Full path of a special folder, without a trailing "\". An error when the desktop has no such folder.
  virtual std::string SpecialFolderPath(int number) = 0;

  /// Where the desktop keeps no Recent folder of its own: brings the folder up to date with the desktop's recent
  /// documents. Called before the folder is listed.
  virtual void RefreshRecentFolder() = 0;

  /// Everything the Recent folder held after the last refresh has been filed; what was waiting for that may go.
  virtual void RecentFolderCaptured() = 0;

  /// Reads a shell link. A file in any other format reads as an empty link, with an entry in the event log; a file that
  /// cannot be opened is an error.
  virtual ReadLink ReadShellLink(const std::string& path) = 0;

  /// Writes a shell link, replacing what was there.
  virtual void CreateShellLink(const std::string& path, const ShellLink& link) = 0;

  /// Opens a document, a folder or a web address with the desktop's default program, in the given working folder.
  /// Returns the shell's result, see OpenResult.
  virtual int Open(const std::string& target, const std::string& workingDirectory, std::int32_t showCommand) = 0;

  /// Starts a command line of the desktop's explorer in a normal window.
  virtual void Run(const std::string& commandLine) = 0;

  /// The operating system's own folder, the first part of the explorer's command line.
  virtual std::string WindowsFolder() = 0;

  /// The path as a person of this desktop reads it.
  virtual std::string DisplayPath(const std::string& path) = 0;
};

}  // namespace dayvane::platform
