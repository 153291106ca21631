// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>

#include "app/Application.h"
#include "app/Asserting.h"
#include "app/Date.h"
#include "capture/DocumentClass.h"
#include "platform/FileSystem.h"

namespace dayvane {

/// One shortcut file (".lnk") and what it points at. Setting the file reads everything; the rest are plain values
/// afterwards. Setting one object to many files is cheaper than an object for each: it reads each document class once.
class CShortcut : private Asserting {
 public:
  static constexpr const char* ClassName = "CShortcut";

  explicit CShortcut(Application& application);

  /// Reads the shortcut at a full path. Fails with the disk's error when it cannot be opened; a file that is no
  /// shortcut has empty fields.
  void SetFile(const std::string& path);

  /// Describes the copy of its file that was made at that full path: the same in all but its place. The copy is read
  /// where the file was rewritten before it was copied. Fails as SetFile does.
  void SetCopy(const std::string& path);

  /// Describes a document whose shortcut at that path is gone; what the shortcut alone knew is empty.
  void SetMissingFile(const std::string& path, const std::string& target);
  bool IsMissing() const { return m_isMissing; }

  const std::string& File() const { return m_file; }
  const std::string& FileName() const { return m_fileName; }  ///< with its extension
  const Date& Modified() const { return m_modified; }         ///< when the shortcut was last written

  /// The same moment as exactly as the disk keeps it: two copies of one shortcut have the same.
  const platform::FileMoment& LastWritten() const { return m_lastWritten; }

  const std::string& Year() const { return m_year; }    ///< "yyyy"
  const std::string& Month() const { return m_month; }  ///< full month name
  const std::string& Day() const { return m_day; }      ///< "dd"

  const std::string& TargetFile() const { return m_targetFile; }
  const std::string& TargetFileName() const { return m_targetFileName; }

  /// The shortcut's own working folder in lower case, or the target's folder when it has none.
  const std::string& WorkingDirectory() const { return m_workingDirectory; }
  const std::string& IconFile() const { return m_iconFile; }
  std::int32_t IconIndex() const { return m_iconIndex; }
  std::int32_t ShowCommand() const { return m_showCommand; }

  /// Description of the target's document class, "Application" for a program, empty when there is none.
  const std::string& TargetClass() const { return m_targetClass; }

  /// Places beside the shortcut one to the program that opens the target's class, when that program exists. It never
  /// takes a document's place, see programshortcut::PathFor. One object places each program's in a folder once.
  void CreateExecutableShortcut();

  /// Opens the target. Returns the shell's result: above 32 opened (platform::Shell::Open names the others).
  std::int32_t OpenDocument() const {
    return m_application.shellServices.Open(m_targetFile, m_workingDirectory, m_showCommand);
  }

 private:
  void ReadLinkFields();
  void TakeLink(const platform::ShellLink& link);
  void ReadDates();
  void ReadTargetClass();

  Application& m_application;
  std::string m_file;
  std::string m_fileName;
  bool m_isMissing = false;
  Date m_modified;
  platform::FileMoment m_lastWritten;
  std::string m_year;
  std::string m_month;
  std::string m_day;
  std::string m_targetFile;
  std::string m_targetFileName;
  std::string m_workingDirectory;
  std::string m_arguments;
  std::string m_iconFile;
  std::int32_t m_iconIndex = 0;
  std::int32_t m_showCommand = 1;
  std::string m_targetClass;
  DocumentClassReader m_classes;
  const DocumentClass* m_class = nullptr;              ///< of the target; one of m_classes
  std::unordered_set<std::string> m_programShortcuts;  ///< placed already: folder and program
};

}  // namespace dayvane
