// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/DateConventions.h"
#include "platform/FileSystem.h"
#include "platform/Help.h"
#include "platform/Registry.h"
#include "platform/Shell.h"
#include "platform/ShellIcons.h"
#include "platform/Windowing.h"

namespace dayvane::platform {

/// The desktop that the program runs on: one of each, outliving the program.
struct Desktop {
  FileSystem& files;
  Shell& shell;
  ShellIcons& icons;
  Registry& registry;
  Windowing& windowing;
  Help& help;
  Clock& clock;
  const DateConventions& dates;
};

}  // namespace dayvane::platform
