// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/Application.h"

/// Shortcuts to the programs that open a day's documents, which lie beside the documents' own. A document may be called
/// like a program ("Code"). Its shortcut keeps its name then, and the program's takes the next that is free:
/// "Code (2).lnk".
namespace dayvane::programshortcut {

/// Where in a folder the shortcut of a program goes, by its name without ".lnk". An earlier one of a program may lie
/// there, and will be replaced.
std::string PathFor(Application& application, const std::string& folder, const std::string& name);

/// Gives the shortcut of a program that lies where a document's is due another name, so that the document's counts as
/// the first of its day. Returns whether there was one; a shortcut to `target` itself does not count.
bool MoveAside(Application& application, const std::string& path, const std::string& target);

}  // namespace dayvane::programshortcut
