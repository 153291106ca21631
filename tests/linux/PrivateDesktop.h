// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// All tests of the Linux desktop run on a desktop of their own, whatever is installed on the machine: its content
/// types, applications, settings and folders live in a temporary folder, and it has no message bus.
///
/// Endings and their types: ".letter", ".sketch", ".chart", ".chosen", ".silent" (its application does not answer),
/// ".stuck" (its program never ends) and
/// ".orphan" (which has no application) are "application/x-letter" and so on; ".both" is two types; ".small" and
/// ".SMALL" differ. "Letters" (letter-writer) has the icon "letters", "Paint" (paint.sketch) a picture of its own.
namespace dayvane::testing::desktop {

/// Native paths.
std::string Folder();                          ///< everything is below
std::string Program(const std::string& name);  ///< of a program that applications of this desktop start
std::string Applications();                    ///< the folder of the user's .desktop files
std::string DefaultsFile();                    ///< the user's mimeapps.list

/// What the next program started on this desktop tells: its working folder, then its arguments, a line each. Waits for
/// it; empty when none is started.
std::string NextStart();

/// Whether a program has told something that NextStart has not returned yet.
bool HasStarted();

}  // namespace dayvane::testing::desktop
