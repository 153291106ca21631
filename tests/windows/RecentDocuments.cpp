// SPDX-License-Identifier: MIT
#include "tests/windows/RecentDocuments.h"

#include <stdexcept>

#include "base/Text.h"
#include "windows/files/Handle.h"
#include "windows/files/LocalTime.h"
#include "windows/files/NativePath.h"
#include "windows/files/WideText.h"
#include "windows/launch/ComApartment.h"
#include "windows/launch/ComObject.h"
#include "windows/launch/SpecialFolders.h"

namespace dayvane::testing {

namespace {

using launch::ComApartment;
using launch::ComObject;

std::wstring WideOf(const std::string& text) {
  const auto wide = files::ToWide(text);
  if (!wide) throw std::runtime_error("no text: " + text);
  return *wide;
}

void Check(HRESULT result, const std::string& about) {
  if (FAILED(result)) throw std::runtime_error("the shell fails: " + about);
}

bool IsFile(const std::string& path) {
  return GetFileAttributesW(files::ToNative(path).value().c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// The document that a shortcut leads to; empty where it cannot be read.
std::string DocumentOf(const std::string& shortcut) {
  const ComApartment apartment;
  const auto link = ComObject<IShellLinkW>::Create(CLSID_ShellLink);
  const auto file = link.As<IPersistFile>();
  wchar_t path[MAX_PATH] = {};
  if (!file || FAILED(file->Load(WideOf(shortcut).c_str(), STGM_READ))) return {};
  return SUCCEEDED(link->GetPath(path, MAX_PATH, nullptr, SLGP_RAWPATH)) ? files::FromNative(path).value_or("") : "";
}

/// Where the shortcut of a document is, or would be.
std::string ShortcutFor(const std::string& document) {
  const std::string name = document.substr(document.rfind('\\') + 1);
  for (int number = 1;; ++number) {
    const std::string ending = number == 1 ? ".lnk" : " (" + std::to_string(number) + ").lnk";
    std::string shortcut = RecentFolder() + "\\" + name + ending;
    if (!IsFile(shortcut) || text::CompareIgnoringCase(DocumentOf(shortcut), document) == 0) return shortcut;
  }
}

void SetLastWritten(const std::string& path, std::int64_t moment) {
  const files::FileHandle file(CreateFileW(files::ToNative(path).value().c_str(), FILE_WRITE_ATTRIBUTES,
                                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                           OPEN_EXISTING, 0, nullptr));
  const FILETIME written = files::ToFileTime(moment);
  if (!file.IsOpen() || SetFileTime(file.Get(), nullptr, nullptr, &written) == 0)
    throw std::runtime_error("cannot set the time of " + path);
}

}  // namespace

std::string RecentFolder() {
  return launch::SpecialFolder(CSIDL_RECENT);
}

std::string AddRecentDocument(const std::string& document, std::optional<std::int64_t> written) {
  std::string shortcut = ShortcutFor(document);
  SaveShellsLink(document, shortcut);
  if (written) SetLastWritten(shortcut, *written);
  return shortcut;
}

void SaveShellsLink(const std::string& document, const std::string& shortcut) {
  const ComApartment apartment;
  const auto link = ComObject<IShellLinkW>::Create(CLSID_ShellLink);
  const auto file = link.As<IPersistFile>();
  if (!file) throw std::runtime_error("there is no shell");
  Check(link->SetPath(WideOf(document).c_str()), document);
  Check(link->SetWorkingDirectory(WideOf(document.substr(0, document.rfind('\\'))).c_str()), document);
  Check(file->Save(WideOf(shortcut).c_str(), TRUE), shortcut);
}

}  // namespace dayvane::testing
