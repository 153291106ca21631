// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace dayvane::session {

/// The entry by which the user's session starts the program: one file, example.dayvane.Dayvane.desktop, in the folder
/// of the desktop's autostart. An entry is the program's own when its command starts a program "dayvane"; what is
/// anything else is somebody else's, and stays. The entry may be a symbolic link, whose target is then written.
class Autostart {
 public:
  /// Both paths are native: the folder of the user's autostart entries, and the program to start.
  Autostart(platform::FileSystem& files, std::string folder, std::string program);

  bool IsOn() const;

  /// Fails with an Error when the entry cannot be written or removed, or another program's is in its place.
  void TurnOn();
  void TurnOff();

  /// Entries that were copied by hand used to have other names: the program would be started twice, and the second
  /// start would say so at every login.
  void TakeOverOldNames();

 private:
  enum class Entry { None, Foreign, Off, On };

  Entry Look(const std::string& name) const;
  std::string Path(const std::string& name) const;
  void Write(const std::string& entry);
  void Remove(const std::string& name);

  platform::FileSystem& m_files;
  std::string m_folder;
  std::string m_program;
};

/// $XDG_CONFIG_HOME/autostart.
std::string DefaultAutostartFolder();

}  // namespace dayvane::session
