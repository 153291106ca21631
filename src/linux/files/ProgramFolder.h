// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "linux/files/XdgFolders.h"

namespace dayvane {

/// Where the program keeps what it writes and finds what came with it; native paths without a trailing "/".
struct ProgramFolders {
  std::string data;       ///< the repository, the data file and the logs
  std::string resources;  ///< help and pictures
  std::string missing;    ///< the folder of resources that an installation here would have; empty where there is none
};

/// The folders that go with the executable's native path. A program installed as <prefix>/bin beside its
/// <prefix>/share/dayvane keeps the user's data in "dayvane" below the user's data folder. So does one whose help lies
/// in `configured`, the folder of resources that the build was made for, wherever a distribution has put the program
/// itself. With its help or its record beside it a program is portable: it keeps everything beside itself, so that it
/// can be carried about with its data, also to a system that has another one installed. One without any help is taken
/// for portable too; that one of a folder "bin" may be an installation that lost its resources.
ProgramFolders FindProgramFolders(const std::string& executable, const std::string& configured,
                                  const xdg::Environment& environment);

/// Makes the data folder where it is missing. Fails with an Error that names the path and the reason when that cannot
/// be done, or when nothing can be written there; the reason is an installation's missing folder where that is one.
void MakeDataFolder(const ProgramFolders& folders);

}  // namespace dayvane
