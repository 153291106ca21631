// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// Starts what the user asks for. Nothing here waits for a program that was started.
namespace dayvane::launch {

/// Opens a document or a folder, by its path, or a web address, with its default program; see platform::Shell::Open.
/// A working folder that is not there does not count; that of a shortcut to a program, which is the program, is its
/// folder. A path that the shell would take for another one's is not opened.
int Open(const std::string& target, const std::string& workingFolder, std::int32_t showCommand);

/// Starts a command line of the explorer in a normal window; an Error when it cannot be started.
void Run(const std::string& commandLine);

/// The command line with the folder of a file in the place of the file, which the explorer would open.
std::string ForFolder(const std::string& commandLine);

}  // namespace dayvane::launch
