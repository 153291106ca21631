// SPDX-License-Identifier: MIT
#include "linux/files/XdgFolders.h"

#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "linux/files/SystemError.h"

namespace dayvane::xdg {

namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

bool IsAbsolute(const std::string& path) {
  return path.starts_with('/');
}

std::string HomeOfUser() {
  const passwd* user = getpwuid(geteuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

std::string WithoutTrailingSlash(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

std::string FolderOr(const std::string& told, const std::string& otherwise) {
  return WithoutTrailingSlash(IsAbsolute(told) ? told : otherwise);
}

bool IsFolder(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

Environment Environment::OfProcess() {
  const std::string home = Variable("HOME");
  return {WithoutTrailingSlash(IsAbsolute(home) ? home : HomeOfUser()),
          Variable("XDG_DATA_HOME"),
          Variable("XDG_CONFIG_HOME"),
          Variable("XDG_RUNTIME_DIR"),
          FolderOr(Variable("TMPDIR"), "/tmp"),
          Variable("XDG_CACHE_HOME")};
}

std::string DataFolder(const Environment& environment) {
  return FolderOr(environment.dataHome, environment.home + "/.local/share");
}

std::string ConfigFolder(const Environment& environment) {
  return FolderOr(environment.configHome, environment.home + "/.config");
}

std::string CacheFolder(const Environment& environment) {
  return FolderOr(environment.cacheHome, environment.home + "/.cache");
}

std::string RuntimeFolder(const Environment& environment) {
  return FolderOr(environment.runtimeFolder, "/run/user/" + std::to_string(geteuid()));
}

void MakeFolder(const std::string& path) {
  if (IsFolder(path)) return;
  const auto parent = path.rfind('/');
  if (parent != std::string::npos && parent > 0) MakeFolder(path.substr(0, parent));
  // Someone else may have made it in the meantime.
  if (mkdir(path.c_str(), 0700) != 0 && !(errno == EEXIST && IsFolder(path))) files::Fail(path);
}

}  // namespace dayvane::xdg
