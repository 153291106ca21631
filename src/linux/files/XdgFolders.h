// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The user's folders by the XDG Base Directory Specification, as native paths without a trailing "/".
namespace dayvane::xdg {

/// What the environment says about the user.
struct Environment {
  std::string home;           ///< the user's home folder
  std::string dataHome;       ///< $XDG_DATA_HOME as it stands, empty when unset; likewise the next two
  std::string configHome;     ///< $XDG_CONFIG_HOME
  std::string runtimeFolder;  ///< $XDG_RUNTIME_DIR
  std::string temporary;      ///< folder for temporary files
  std::string cacheHome;      ///< $XDG_CACHE_HOME as it stands, empty when unset

  /// Without a usable $HOME, the home folder is that of the user database.
  static Environment OfProcess();
};

/// A relative path counts as unset, as the base directory rules have it: it would depend on the current folder.
std::string DataFolder(const Environment& environment);
std::string ConfigFolder(const Environment& environment);
std::string CacheFolder(const Environment& environment);

/// Where the session's sockets and mounts are; where systems put it when the environment does not tell.
std::string RuntimeFolder(const Environment& environment);

/// Makes the folder and those above it that are missing, for the user alone (0700). An existing folder stays as it is.
/// Fails with an Error that names the path and the reason.
void MakeFolder(const std::string& path);

}  // namespace dayvane::xdg
