// SPDX-License-Identifier: MIT
#include "windows/files/UnfinishedFile.h"

#include <utility>

#include "windows/files/SystemError.h"

namespace dayvane::files {

UnfinishedFile::UnfinishedFile(Place destination)
    : m_destination(std::move(destination)),
      m_unfinished(m_destination.native.substr(0, m_destination.native.rfind(L'\\') + 1) + kUnfinishedName),
      m_file(Create()) {}

UnfinishedFile::~UnfinishedFile() {
  if (m_done) return;
  m_file = FileHandle(INVALID_HANDLE_VALUE);
  Remove(m_unfinished);
}

FileHandle UnfinishedFile::Create() const {
  // Nobody may write to it meanwhile; that it may be read and deleted lets a virus scanner look.
  constexpr DWORD kShare = FILE_SHARE_READ | FILE_SHARE_DELETE;
  FileHandle file(INVALID_HANDLE_VALUE);
  const auto create = [&] {
    file = FileHandle(CreateFileW(m_unfinished.c_str(), GENERIC_WRITE | FILE_WRITE_ATTRIBUTES, kShare, nullptr,
                                  CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file.IsOpen();
  };
  std::uint32_t systemError = Persist(create);
  if (systemError == ERROR_FILE_EXISTS && Remove(m_unfinished) == ERROR_SUCCESS) systemError = Persist(create);
  if (systemError != ERROR_SUCCESS) Fail(systemError, m_destination.named);
  return file;
}

void UnfinishedFile::SetWritten(const FILETIME& written) const {
  if (SetFileTime(m_file.Get(), nullptr, nullptr, &written) == 0) Fail(m_destination.named);
}

void UnfinishedFile::FlushToDisk() const {
  if (FlushFileBuffers(m_file.Get()) == 0) Fail(m_destination.named);
}

bool UnfinishedFile::TakePlace() const {
  constexpr DWORD kWhole = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  const wchar_t* destination = m_destination.native.c_str();
  if (MoveFileExW(m_unfinished.c_str(), destination, kWhole) != 0) return true;
  if (GetLastError() != ERROR_ACCESS_DENIED) return false;
  const DWORD attributes = GetFileAttributesW(destination);
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
  }
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    SetFileAttributesW(destination, attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    if (MoveFileExW(m_unfinished.c_str(), destination, kWhole) != 0) return true;
  }
  // The system does not tell a file that somebody reads just now from one that is denied for good.
  SetLastError(ERROR_SHARING_VIOLATION);
  return false;
}

void UnfinishedFile::Finish() {
  // A disk in the network may tell only now that the bytes found no room.
  if (!m_file.CloseNow()) Fail(m_destination.named);
  const std::uint32_t systemError = Persist([this] { return TakePlace(); });
  if (systemError != ERROR_SUCCESS) Fail(systemError, m_destination.named);
  m_done = true;
}

}  // namespace dayvane::files
