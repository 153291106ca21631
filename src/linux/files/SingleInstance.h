// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "linux/files/FileDescriptor.h"
#include "linux/files/XdgFolders.h"

namespace dayvane {

/// The right to be the user's one running instance, held for as long as the object lives. The kernel holds the lock
/// and lets it go with the process, however that ends.
class SingleInstance {
 public:
  /// Nothing when another instance runs. An Error when the folder cannot be used to find out.
  static std::optional<SingleInstance> Acquire(const std::string& folder);

  /// The folder for the lock: the user's runtime folder, the same one whether or not the environment names it, else
  /// a folder of the user's own below the temporary folder, which is made. `runtimeFolders` is where the system keeps
  /// the runtime folders of its users. A folder that belongs to someone else is never taken.
  static std::string Folder(const xdg::Environment& environment, const std::string& runtimeFolders = "/run/user");

 private:
  explicit SingleInstance(files::FileDescriptor file) : m_file(std::move(file)) {}

  files::FileDescriptor m_file;
};

}  // namespace dayvane
