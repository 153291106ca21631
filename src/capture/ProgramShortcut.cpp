// SPDX-License-Identifier: MIT
#include "capture/ProgramShortcut.h"

#include "app/IgnoreErrors.h"
#include "app/ShellServices.h"

namespace dayvane::programshortcut {

namespace {

using platform::EntryKind;

const std::string kExtension = ".lnk";

/// An empty link for a file that is not a shortcut or cannot be read.
platform::ShellLink Read(Application& application, const std::string& path) {
  platform::ShellLink link;
  IgnoreErrors([&] { link = application.shellServices.ReadShortcut(path).link; });
  return link;
}

/// Whether something lies there that must stay: a document's shortcut, or a folder, which nothing can replace.
bool IsTaken(Application& application, const std::string& path) {
  const auto status = application.desktop.files.Status(path);
  if (!status) return false;
  if (status->kind != EntryKind::File) return status->kind == EntryKind::Folder;
  const platform::ShellLink link = Read(application, path);
  return !link.target.empty() && !LeadsToProgram(link);
}

/// The first of the names, from this number on, that is not taken.
std::string FreePath(Application& application, const std::string& folder, const std::string& name, int number) {
  for (;; ++number) {
    std::string path = folder + "\\" + name + (number == 1 ? "" : " (" + std::to_string(number) + ")") + kExtension;
    if (!IsTaken(application, path)) return path;
  }
}

}  // namespace

std::string PathFor(Application& application, const std::string& folder, const std::string& name) {
  return FreePath(application, folder, name, 1);
}

bool MoveAside(Application& application, const std::string& path, const std::string& target) {
  const platform::ShellLink link = Read(application, path);
  if (!LeadsToProgram(link) || link.target == target) return false;
  const PathParts parts = SplitPath(path);
  const std::string name = parts.fileName.substr(0, parts.fileName.size() - kExtension.size());
  // The new one is made first: a kill leaves one too many rather than none.
  application.shellServices.CreateShortcut(FreePath(application, parts.folder, name, 2), link.target, link.target);
  application.desktop.files.Delete(path);
  return true;
}

}  // namespace dayvane::programshortcut
