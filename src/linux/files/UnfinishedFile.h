// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <string>
#include <string_view>

#include "linux/files/FileDescriptor.h"

namespace dayvane::files {

/// Name of the one unfinished file that a folder may have. Hidden, so that nobody takes it for a document.
inline constexpr const char* kUnfinishedName = ".dayvane-unfinished";

/// Writes all of the bytes to an open file. An error is about `path`.
void WriteAll(int file, std::string_view bytes, const std::string& path);

/// A new file beside its destination, kUnfinishedName, which it takes the place of when it is whole; gone again when it
/// never is.
class UnfinishedFile {
 public:
  /// `destination` is the native path, `path` is what errors are about.
  UnfinishedFile(std::string destination, std::string path);
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;
  ~UnfinishedFile();

  int Number() const { return m_file.Number(); }

  void Write(std::string_view bytes) const { WriteAll(Number(), bytes, m_path); }
  void SetWritten(const struct timespec& written) const;
  void FlushToDisk() const;

  /// Takes the destination's place. Nothing may be written after that.
  void Finish();

 private:
  FileDescriptor Create() const;

  std::string m_destination;
  std::string m_path;
  std::string m_unfinished;
  FileDescriptor m_file;
  bool m_done = false;
};

}  // namespace dayvane::files
