// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "windows/files/NativeFile.h"

namespace dayvane::files {

/// Name of the one unfinished file that a folder may have, the same on every system. It is told as hidden, so that
/// nobody takes it for a document.
inline constexpr const wchar_t* kUnfinishedName = L".dayvane-unfinished";
inline constexpr const char* kUnfinishedNameText = ".dayvane-unfinished";

/// A new file beside its destination, kUnfinishedName, which it takes the place of when it is whole; gone again when it
/// never is.
class UnfinishedFile {
 public:
  explicit UnfinishedFile(Place destination);
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;
  ~UnfinishedFile();

  void Write(std::string_view bytes) const { WriteAll(m_file, bytes, m_destination.named); }
  void SetWritten(const FILETIME& written) const;
  void FlushToDisk() const;

  /// Takes the destination's place, also that of a file that must not be written. Nothing may be written after that.
  void Finish();

 private:
  FileHandle Create() const;
  bool TakePlace() const;

  Place m_destination;
  std::wstring m_unfinished;
  FileHandle m_file;
  bool m_done = false;
};

}  // namespace dayvane::files
