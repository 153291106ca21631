#include "capture/CShortcut.h"

#include "app/IgnoreErrors.h"
#include "app/ShellServices.h"
#include "base/Text.h"
#include "fs/Dir.h"

namespace dayvane {

namespace {

/// A field as links carry it: up to its end of text, without blanks around it.
std::string Field(const std::string& text) {
  return std::string(text::Trim(text.substr(0, text.find('\0'))));
}

/// The extension with its ".", in upper case; empty for a name without one.
std::string ExtensionOf(const std::string& fileName) {
  const auto dot = fileName.rfind('.');
  return dot == std::string::npos ? std::string() : text::ToUpper(fileName.substr(dot));
}

std::string Capitalised(const std::string& name) {
  // The first letter may take several bytes.
  std::size_t first = 1;
  while (first < name.size() && (static_cast<unsigned char>(name[first]) & 0xC0U) == 0x80U) ++first;
  return text::ToUpper(name.substr(0, first)) + (first < name.size() ? text::ToLower(name.substr(first)) : "");
}

}  // namespace

void CShortcut::SetFile(const std::string& path) {
  m_application.asserts.Assert(!text::Trim(path).empty(), std::string(ClassName) + ".File: Path is missing");
  m_file = path;
  m_fileName = m_application.shellServices.SplitPath(path).fileName;
  ReadLinkFields();
  ReadDates();
  m_targetClass.clear();
  m_executable.clear();
  m_executableFileName.clear();
  ReadTargetClass();
}

void CShortcut::ReadDates() {
  const auto& dates = m_application.desktop.dates;
  m_modified = m_lastWritten.local;
  m_month = Format(m_modified, "mmmm", dates);
  m_day = Format(m_modified, "dd", dates);
  m_year = Format(m_modified, "yyyy", dates);
}

void CShortcut::ReadLinkFields() {
  const platform::ReadLink read = m_application.shellServices.ReadShortcut(m_file);
  m_lastWritten = read.written;
  m_targetFile = Field(read.link.target);
  m_workingDirectory = text::ToLower(Field(read.link.workingDirectory));
  m_arguments = Field(read.link.arguments);
  m_iconFile = Field(read.link.iconFile);
  m_iconIndex = read.link.iconIndex;
  m_showCommand = read.link.showCommand;
  PathParts target = m_application.shellServices.SplitPath(m_targetFile);
  m_targetFileName = std::move(target.fileName);
  if (m_workingDirectory.empty()) m_workingDirectory = std::move(target.folder);
}

void CShortcut::ReadTargetClass() {
  const std::string extension = ExtensionOf(m_targetFileName);
  if (extension.empty() || extension == ".") return;
  if (extension == ".EXE") {
    m_targetClass = "Application";
    return;
  }
  const auto defaultValue = [this](const std::string& key) {
    return m_application.desktop.registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\" + key)->Value("");
  };
  std::string className;
  if (!IgnoreErrors([&] { className = defaultValue(extension); })) return;
  if (!IgnoreErrors([&] { m_targetClass = defaultValue(className); })) return;
  IgnoreErrors([&] {
    const std::string icon = defaultValue(className + "\\DefaultIcon");
    const auto comma = icon.find(',');
    if (comma == std::string::npos) return;
    m_iconFile = icon.substr(0, comma);
    if (const auto index = text::ToInt32(icon.substr(comma + 1))) m_iconIndex = *index;
  });
  IgnoreErrors([&] { ReadOpenCommand(defaultValue(className + "\\shell\\open\\command")); });
}

void CShortcut::ReadOpenCommand(const std::string& commandLine) {
  // What follows the place-holder of the document's path is dropped with it; a quotation mark that opened before it is
  // then the last character.
  m_executable = text::Trim(commandLine.substr(0, commandLine.find('%')));
  if (m_executable.ends_with('"')) {
    std::erase(m_executable, '"');
    m_executable = text::Trim(m_executable);
  }
  m_executableFileName = Capitalised(m_application.shellServices.SplitPath(m_executable).fileName);
}

void CShortcut::CreateExecutableShortcut() const {
  if (m_executable.empty() || !FileExists(m_application.desktop.files, m_executable)) return;
  const ShellServices& shell = m_application.shellServices;
  // Creating replaces what is there, so nothing needs deleting first.
  shell.CreateShortcut(shell.SplitPath(m_file).folder + "\\" + m_executableFileName + ".lnk", m_executable,
                       m_executable);
}

std::int32_t CShortcut::OpenDocument() const {
  return m_application.shellServices.Open(m_targetFile, m_workingDirectory, m_showCommand);
}

}  // namespace dayvane
