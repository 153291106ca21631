// SPDX-License-Identifier: MIT
#include "capture/CShortcut.h"

#include "app/IgnoreErrors.h"
#include "app/ShellServices.h"
#include "base/Text.h"
#include "capture/ProgramShortcut.h"

namespace dayvane {

namespace {

/// A field as links carry it: up to its end of text, without blanks around it.
std::string Field(const std::string& text) {
  return std::string(text::Trim(text.substr(0, text.find('\0'))));
}

/// Programs are often reached by a symbolic link; one that leads nowhere, or to a folder, does not count.
bool ProgramExists(platform::FileSystem& files, const std::string& path) {
  bool exists = false;
  IgnoreErrors([&] {
    const auto status = files.Status(files.Resolve(path));
    exists = status && status->kind == platform::EntryKind::File;
  });
  return exists;
}

}  // namespace

CShortcut::CShortcut(Application& application)
    : Asserting(application, ClassName), m_application(application), m_classes(application.desktop.registry) {}

void CShortcut::SetFile(const std::string& path) {
  Assert(!text::Trim(path).empty(), ".File: Path is missing");
  m_file = path;
  m_fileName = m_application.shellServices.SplitPath(path).fileName;
  m_isMissing = false;
  ReadLinkFields();
  ReadDates();
  ReadTargetClass();
}

void CShortcut::SetCopy(const std::string& path) {
  const auto copy = m_application.desktop.files.Status(path);
  if (!copy || copy->written != m_lastWritten) return SetFile(path);
  m_file = path;
  m_fileName = m_application.shellServices.SplitPath(path).fileName;
}

void CShortcut::SetMissingFile(const std::string& path, const std::string& target) {
  m_file = path;
  m_fileName = m_application.shellServices.SplitPath(path).fileName;
  m_isMissing = true;
  m_lastWritten = {};
  m_modified = {};
  m_year = m_month = m_day = {};
  platform::ShellLink link;
  link.target = target;
  TakeLink(link);
  ReadTargetClass();
}

void CShortcut::ReadDates() {
  const Date modified = m_lastWritten.local;
  const bool sameDay = !m_year.empty() && modified.Midnight() == m_modified.Midnight();
  m_modified = modified;
  if (sameDay) return;
  const auto& dates = m_application.desktop.dates;
  m_month = Format(m_modified, "mmmm", dates);
  m_day = Format(m_modified, "dd", dates);
  m_year = Format(m_modified, "yyyy", dates);
}

void CShortcut::ReadLinkFields() {
  const platform::ReadLink read = m_application.shellServices.ReadShortcut(m_file);
  m_lastWritten = read.written;
  TakeLink(read.link);
}

void CShortcut::TakeLink(const platform::ShellLink& link) {
  m_targetFile = Field(link.target);
  m_workingDirectory = text::ToLower(Field(link.workingDirectory));
  m_arguments = Field(link.arguments);
  m_iconFile = Field(link.iconFile);
  m_iconIndex = link.iconIndex;
  m_showCommand = link.showCommand;
  PathParts target = m_application.shellServices.SplitPath(m_targetFile);
  m_targetFileName = std::move(target.fileName);
  if (m_workingDirectory.empty()) m_workingDirectory = std::move(target.folder);
}

void CShortcut::ReadTargetClass() {
  m_class = &m_classes.ClassOf(m_targetFileName);
  m_targetClass = m_class->description;
  if (!m_class->icon) return;
  m_iconFile = m_class->icon->file;
  m_iconIndex = m_class->icon->index;
}

void CShortcut::CreateExecutableShortcut() {
  if (m_class == nullptr || m_class->executable.empty()) return;
  const ShellServices& shell = m_application.shellServices;
  const std::string folder = shell.SplitPath(m_file).folder;
  const std::string placed = folder + "|" + m_class->executable;
  if (m_programShortcuts.contains(placed)) return;
  if (!ProgramExists(m_application.desktop.files, m_class->executable)) return;
  // Creating replaces what is there, so nothing needs deleting first.
  shell.CreateShortcut(programshortcut::PathFor(m_application, folder, m_class->executableFileName),
                       m_class->executable, m_class->executable);
  m_programShortcuts.insert(placed);
}

}  // namespace dayvane
