// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>
#include <utility>

namespace dayvane::files {

/// Owns an open file.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : m_number(number) {}
  FileDescriptor(FileDescriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(m_number, other.m_number);
    return *this;
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (m_number >= 0) close(m_number);
  }

  bool IsOpen() const { return m_number >= 0; }
  int Number() const { return m_number; }

  /// Closes before the end of the object's life, to learn whether that went well. It is closed either way.
  bool Close() { return close(std::exchange(m_number, -1)) == 0; }

 private:
  int m_number;
};

}  // namespace dayvane::files
