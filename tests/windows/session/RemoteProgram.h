// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "windows/files/Handle.h"
#include "windows/files/Win32.h"

namespace dayvane::session {

inline constexpr std::chrono::seconds kSoon{10};
inline constexpr std::chrono::seconds kLong{60};  ///< a start, or work on many documents

/// Looks until the condition holds; throws with the description when it does not in time.
void WaitUntil(const std::function<bool()>& condition, const std::string& description,
               std::chrono::milliseconds longest = kSoon);

/// The program, run from a folder in which its data lie.
class RemoteProgram {
 public:
  /// Starts the program of a folder; throws when that fails.
  explicit RemoteProgram(const std::wstring& folder);
  RemoteProgram(const RemoteProgram&) = delete;
  RemoteProgram& operator=(const RemoteProgram&) = delete;
  ~RemoteProgram();  ///< ends the program at once if it runs

  bool Runs() const;
  std::optional<DWORD> WaitForEnd(std::chrono::milliseconds longest = kLong) const;  ///< its exit code

  std::vector<HWND> TopWindows() const;  ///< also hidden ones, those in front first

  HWND FindWindowOf(const std::string& title) const;  ///< shown, with a title that begins so; nullptr for none
  HWND WaitForWindow(const std::string& title) const;

  HWND FindBox() const;     ///< a message box that is open; nullptr for none
  HWND WaitForBox() const;  ///< throws when none comes

  DWORD Id() const { return m_id; }

 private:
  DWORD m_id = 0;
  files::FileHandle m_process{INVALID_HANDLE_VALUE};
};

/// A child window, at any depth, that meets a condition; nullptr for none.
HWND FindChild(HWND parent, const std::function<bool(HWND)>& condition);
HWND FindChild(HWND parent, const std::string& className, const std::string& text);

/// What a message box says.
std::string BoxText(HWND box);

}  // namespace dayvane::session
