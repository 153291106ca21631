// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "windows/files/Handle.h"
#include "windows/files/Win32.h"

namespace dayvane::session {

/// Sends a message to a window of another process. Throws when it is not answered within a minute: large lists take
/// their time when their style changes.
LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// Room in the process of a window, for the messages of controls that carry pointers.
class RemoteMemory {
 public:
  explicit RemoteMemory(HWND window);
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory();

  static constexpr std::size_t kTextOffset = 1024;  ///< of a text that a structure at the beginning points to
  static constexpr int kTextLength = 1024;          ///< UTF-16 units

  template <class Value>
  void Write(const Value& value) {
    WriteBytes(&value, sizeof(Value));  // NOLINT(bugprone-sizeof-expression): an item of a tree is a pointer
  }
  template <class Value>
  Value Read() const {
    Value value{};
    ReadBytes(&value, sizeof(Value), 0);
    return value;
  }

  /// Sends a message whose lParam is this room.
  LRESULT Ask(UINT message, WPARAM wParam = 0) const;

  wchar_t* Text() const { return reinterpret_cast<wchar_t*>(m_room + kTextOffset); }
  std::string ReadText(std::size_t offset = kTextOffset) const;  ///< UTF-8

 private:
  void WriteBytes(const void* bytes, std::size_t size);
  void ReadBytes(void* bytes, std::size_t size, std::size_t offset) const;

  HWND m_window;
  files::FileHandle m_process;
  std::byte* m_room;
};

}  // namespace dayvane::session
