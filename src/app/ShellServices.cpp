// SPDX-License-Identifier: MIT
#include "app/ShellServices.h"

namespace dayvane {

PathParts SplitPath(std::string_view path) {
  PathParts parts;
  const auto separator = path.rfind('\\');
  const auto nameStart = separator == std::string_view::npos ? 0 : separator + 1;
  parts.fileName = path.substr(nameStart);
  if (separator != std::string_view::npos) parts.folder = path.substr(0, separator);
  const auto dot = parts.fileName.rfind('.');
  if (dot != std::string::npos) parts.extension = parts.fileName.substr(dot + 1);
  return parts;
}

bool LeadsToProgram(const platform::ShellLink& link) {
  return !link.target.empty() && !link.targetIsFolder && link.workingDirectory == link.target;
}

void ShellServices::CreateShortcut(const std::string& path, const std::string& target,
                                   const std::string& workingFolder) const {
  platform::ShellLink link;
  link.target = target;
  link.workingDirectory = workingFolder;
  m_desktop.shell.CreateShellLink(path, link);
}

bool ShellServices::IsNumericKey(int character) {
  constexpr int kBackspace = 8;
  constexpr int kSelectAll = 1;
  constexpr int kCopy = 3;
  constexpr int kPaste = 22;
  constexpr int kCut = 24;
  constexpr int kUndo = 26;
  if (character >= '0' && character <= '9') return true;
  return character == kBackspace || character == kSelectAll || character == kCopy || character == kPaste ||
         character == kCut || character == kUndo;
}

}  // namespace dayvane
