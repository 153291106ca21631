// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "windows/files/Win32.h"

namespace dayvane::files {

/// Owns what the system opened, and closes it by `Close`.
template <auto Close>
class Handle {
 public:
  /// Of a call that failed there is nothing to own: some calls tell that by a null pointer.
  explicit Handle(HANDLE handle) : m_handle(handle == nullptr ? INVALID_HANDLE_VALUE : handle) {}
  Handle(Handle&& other) noexcept : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(m_handle, other.m_handle);
    return *this;
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (IsOpen()) Close(m_handle);
  }

  bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return m_handle; }

  /// Closes before the end of the object's life, to learn whether that went well. It is closed either way.
  bool CloseNow() { return Close(std::exchange(m_handle, INVALID_HANDLE_VALUE)) != 0; }

 private:
  HANDLE m_handle;
};

using FileHandle = Handle<&CloseHandle>;
using ObjectHandle = Handle<&CloseHandle>;  ///< an event, a mutex, a process
using SearchHandle = Handle<&FindClose>;

}  // namespace dayvane::files
