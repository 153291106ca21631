// SPDX-License-Identifier: MIT
#include "windows/launch/SpecialFolders.h"

#include <optional>

#include "base/Error.h"
#include "platform/Shell.h"
#include "windows/files/NativePath.h"
#include "windows/launch/ComObject.h"

namespace dayvane::launch {

namespace {

static_assert(platform::kRecentFolder == CSIDL_RECENT);

std::optional<std::string> RecentPath() {
  PWSTR path = nullptr;
  const HRESULT result = SHGetKnownFolderPath(FOLDERID_Recent, KF_FLAG_DONT_VERIFY, nullptr, &path);
  const TaskMemory<wchar_t> owner(path);
  return SUCCEEDED(result) && path != nullptr ? files::FromNative(path) : std::nullopt;
}

std::optional<std::string> PathOf(int number) {
  constexpr int kMostFolders = 0xFF;  // greater numbers are flags (CSIDL_FLAG_…)
  wchar_t path[MAX_PATH];
  if (number < 0 || number > kMostFolders) return std::nullopt;
  const HRESULT result = SHGetFolderPathW(nullptr, number | CSIDL_FLAG_DONT_VERIFY, nullptr, SHGFP_TYPE_CURRENT, path);
  // S_FALSE is for a folder that could be, but is not.
  return result == S_OK ? files::FromNative(path) : std::nullopt;
}

}  // namespace

std::string SpecialFolder(int number) {
  auto path = number == platform::kRecentFolder ? RecentPath() : PathOf(number);
  if (!path || path->empty()) throw Error(kPathNotFound, "No special folder of number " + std::to_string(number));
  if (path->ends_with('\\')) path->pop_back();
  return std::move(*path);
}

}  // namespace dayvane::launch
