// SPDX-License-Identifier: MIT
#include "windows/files/ProgramFolder.h"

#include "base/Error.h"
#include "windows/files/Handle.h"
#include "windows/files/NativePath.h"
#include "windows/files/SystemError.h"

namespace dayvane {

namespace {

/// The system tells that a path did not fit by filling the buffer.
std::wstring ModulePath(HMODULE module) {
  constexpr std::size_t kLongest = 0x8000;
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) files::Fail("");
    if (length < path.size()) return path.substr(0, length);
    if (path.size() >= kLongest) throw Error(kBadFileName, "The path of the program is too long");
    path.resize(path.size() * 2);
  }
}

}  // namespace

std::string ProgramFolder(HMODULE module) {
  const auto path = files::FromNative(ModulePath(module));
  if (!path) throw Error(kBadFileName, "The path of the program cannot be used");
  return path->substr(0, path->rfind('\\'));
}

bool CanBeWritten(const std::string& folder) {
  // Gone with its handle, also when the program is killed; no two instances use the same.
  constexpr DWORD kPassing = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE;
  const auto native = files::ToNative(folder + "\\.dayvane-" + std::to_string(GetCurrentProcessId()));
  if (!native) return false;
  const files::FileHandle file(
      CreateFileW(native->c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_ALWAYS, kPassing, nullptr));
  return file.IsOpen();
}

}  // namespace dayvane
