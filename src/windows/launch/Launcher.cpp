// SPDX-License-Identifier: MIT
#include "windows/launch/Launcher.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "base/Error.h"
#include "base/Text.h"
#include "platform/Shell.h"
#include "windows/files/Handle.h"
#include "windows/files/NativePath.h"
#include "windows/files/SystemError.h"
#include "windows/files/WideText.h"
#include "windows/launch/Paths.h"

namespace dayvane::launch {

namespace {

using enum platform::OpenResult;

constexpr std::string_view kExplorer = "\\EXPLORER.EXE ";
constexpr std::string_view kFolderArguments[] = {"/n,/e,/root,", "/n,"};
constexpr int kLastFailure = 32;  ///< greater results tell of success

/// Whether a text names a resource of a scheme ("https://…"), whose name is longer than a drive's.
bool IsAddress(std::string_view target) {
  const auto colon = target.find(':');
  const auto isOfScheme = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '+' || c == '-' ||
           c == '.';
  };
  return colon != std::string_view::npos && colon > 1 && std::ranges::all_of(target.substr(0, colon), isOfScheme);
}

std::optional<DWORD> AttributesOf(const std::string& path) {
  const auto native = files::ToNative(path);
  const DWORD attributes = native ? GetFileAttributesW(native->c_str()) : INVALID_FILE_ATTRIBUTES;
  return attributes != INVALID_FILE_ATTRIBUTES ? std::optional(attributes) : std::nullopt;
}

bool IsFolderAt(const std::string& path) {
  return (AttributesOf(path).value_or(0) & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// With its "\" where it is the root of a drive.
std::string FolderOf(const std::string& path) {
  const auto end = path.rfind('\\');
  return path.substr(0, end == 2 ? 3 : end);
}

/// What an error of the system says of a path, as the shell would put it; nothing where that is for the shell to say.
std::optional<int> ResultFor(DWORD systemError) {
  switch (systemError) {
    case ERROR_FILE_NOT_FOUND:
      return kSeFileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NETWORK_UNREACHABLE:
    case ERROR_HOST_UNREACHABLE:
      return kSePathNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_CANCELLED:
      return kSeAccessDenied;
    case ERROR_NO_ASSOCIATION:
      return kSeNoAssociation;
    default:
      return std::nullopt;
  }
}

/// What there is to say of something that is not there.
std::optional<int> ResultForMissing(const std::string& path, const std::wstring& native) {
  if (GetFileAttributesW(native.c_str()) != INVALID_FILE_ATTRIBUTES) return std::nullopt;
  const auto result = ResultFor(GetLastError());
  // Not every system tells a missing file from a missing folder or drive.
  if (result == kSeFileNotFound && !IsFolderAt(FolderOf(path))) return kSePathNotFound;
  return result == kSeAccessDenied ? std::nullopt : result;
}

/// Whether the system takes the path for itself when it is not told to take it literally: "con.txt" is a device to it,
/// and "Report." and "Report" are one.
bool IsTakenAsItIs(const std::wstring& path) {
  const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(size, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
  return CompareStringOrdinal(full.c_str(), -1, path.c_str(), -1, TRUE) == CSTR_EQUAL;
}

/// The path that the shell knows something by, mostly its own; nothing where it would take it for something else's.
std::optional<std::wstring> PathForShell(const std::string& path, const std::wstring& native) {
  auto wide = files::ToWide(path);
  if (!wide) return std::nullopt;
  const bool isLiteral = IsTakenAsItIs(*wide);
  if (isLiteral && wide->size() < MAX_PATH) return wide;
  std::wstring shortPath(MAX_PATH, L'\0');
  const DWORD length = GetShortPathNameW(native.c_str(), shortPath.data(), MAX_PATH);
  const auto plain = length > 0 && length < MAX_PATH ? files::FromNative(shortPath.substr(0, length)) : std::nullopt;
  auto shortened = plain ? files::ToWide(*plain) : std::nullopt;
  if (shortened && IsTakenAsItIs(*shortened)) return shortened;
  return isLiteral ? wide : std::nullopt;
}

std::wstring WorkingFolderFor(const std::string& folder) {
  std::string found;
  if (IsFolderAt(folder))
    found = folder;
  else if (AttributesOf(folder))
    found = FolderOf(folder);
  return files::ToWide(found).value_or(L"");
}

int Execute(const std::wstring& target, const std::wstring& folder, std::int32_t showCommand) {
  SHELLEXECUTEINFOW info{};
  info.cbSize = sizeof info;
  // The program tells the user itself, and its thread may end while the shell still talks to the other program.
  info.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
  info.hwnd = GetDesktopWindow();
  info.lpVerb = L"open";
  info.lpFile = target.c_str();
  info.lpDirectory = folder.empty() ? nullptr : folder.c_str();
  info.nShow = showCommand;
  const bool isOpened = ShellExecuteExW(&info) != 0;
  const DWORD systemError = GetLastError();
  const int result = static_cast<int>(reinterpret_cast<INT_PTR>(info.hInstApp));
  if (isOpened) return std::max(result, kLastFailure + 1);
  return result > 0 && result <= kLastFailure ? result : ResultFor(systemError).value_or(0);
}

}  // namespace

int Open(const std::string& target, const std::string& workingFolder, std::int32_t showCommand) {
  const auto native = files::ToNative(target);
  // Anything else the shell would look for in the folders of programs.
  if (!native && !IsAddress(target)) return kSePathNotFound;
  std::optional<std::wstring> opened = files::ToWide(target);
  if (native) {
    if (const auto result = ResultForMissing(target, *native)) return *result;
    opened = PathForShell(target, *native);
  }
  if (!opened) return kSeAssociationIncomplete;
  return Execute(*opened, WorkingFolderFor(workingFolder), showCommand);
}

std::string ForFolder(const std::string& commandLine) {
  const auto program = commandLine.find(kExplorer);
  if (program == std::string::npos) return commandLine;
  const std::string_view arguments = std::string_view(commandLine).substr(program + kExplorer.size());
  for (const std::string_view known : kFolderArguments) {
    if (!arguments.starts_with(known)) continue;
    const std::string path(arguments.substr(known.size()));
    const bool isFile = IsAtHand(path) && AttributesOf(path) && !IsFolderAt(path);
    return isFile ? commandLine.substr(0, commandLine.size() - path.size()) + FolderOf(path) : commandLine;
  }
  return commandLine;
}

void Run(const std::string& commandLine) {
  auto line = files::ToWide(ForFolder(commandLine));
  if (!line) throw Error(kInvalidProcedureCall, "Not a command line", commandLine);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, line->data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started) == 0)
    files::Fail(commandLine);
  const files::ObjectHandle process(started.hProcess);
  const files::ObjectHandle thread(started.hThread);
}

}  // namespace dayvane::launch
