// SPDX-License-Identifier: MIT
#include "tests/windows/session/RemoteProgram.h"

#include <stdexcept>
#include <thread>

#include "tests/windows/session/RemoteControls.h"

namespace dayvane::session {

namespace {

constexpr const wchar_t* kDialogClass = L"#32770";

bool HasClass(HWND window, const wchar_t* name) {
  wchar_t buffer[64] = L"";
  GetClassNameW(window, buffer, static_cast<int>(std::size(buffer)));
  return std::wstring_view(buffer) == name;
}

}  // namespace

void WaitUntil(const std::function<bool()>& condition, const std::string& description,
               std::chrono::milliseconds longest) {
  const auto late = std::chrono::steady_clock::now() + longest;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > late) throw std::runtime_error("waited in vain for " + description);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
}

RemoteProgram::RemoteProgram(const std::wstring& folder) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  std::wstring command = L"\"" + folder + L"\\dayvane.exe\"";
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup,
                     &started) == 0)
    throw std::runtime_error("the program does not start: " + std::to_string(GetLastError()));
  m_process = files::FileHandle(started.hProcess);
  const files::FileHandle thread(started.hThread);
  m_id = started.dwProcessId;
}

RemoteProgram::~RemoteProgram() {
  if (!Runs()) return;
  TerminateProcess(m_process.Get(), 1);
  WaitForSingleObject(m_process.Get(), static_cast<DWORD>(std::chrono::milliseconds(kSoon).count()));
}

bool RemoteProgram::Runs() const {
  return WaitForSingleObject(m_process.Get(), 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> RemoteProgram::WaitForEnd(std::chrono::milliseconds longest) const {
  DWORD code = 0;
  if (WaitForSingleObject(m_process.Get(), static_cast<DWORD>(longest.count())) != WAIT_OBJECT_0 ||
      GetExitCodeProcess(m_process.Get(), &code) == 0)
    return std::nullopt;
  return code;
}

std::vector<HWND> RemoteProgram::TopWindows() const {
  struct Search {
    DWORD process;
    std::vector<HWND> windows;
  } search{m_id, {}};
  EnumWindows(
      [](HWND window, LPARAM parameter) -> BOOL {
        auto& found = *reinterpret_cast<Search*>(parameter);
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == found.process) found.windows.push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.windows;
}

HWND RemoteProgram::FindWindowOf(const std::string& title) const {
  for (HWND window : TopWindows())
    if (IsShown(window) && TextOf(window).starts_with(title)) return window;
  return nullptr;
}

HWND RemoteProgram::WaitForWindow(const std::string& title) const {
  HWND window = nullptr;
  WaitUntil([&] { return (window = FindWindowOf(title)) != nullptr || !Runs(); }, "a window " + title, kLong);
  if (window == nullptr) throw std::runtime_error("the program ended without a window " + title);
  return window;
}

HWND RemoteProgram::FindBox() const {
  for (HWND window : TopWindows())
    if (IsShown(window) && HasClass(window, kDialogClass)) return window;
  return nullptr;
}

HWND RemoteProgram::WaitForBox() const {
  HWND box = nullptr;
  WaitUntil([&] { return (box = FindBox()) != nullptr; }, "a message box", kLong);
  return box;
}

HWND FindChild(HWND parent, const std::function<bool(HWND)>& condition) {
  struct Search {
    const std::function<bool(HWND)>& condition;
    HWND found;
  } search{condition, nullptr};
  EnumChildWindows(
      parent,
      [](HWND window, LPARAM parameter) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(parameter);
        if (!wanted.condition(window)) return TRUE;
        wanted.found = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND FindChild(HWND parent, const std::string& className, const std::string& text) {
  return FindChild(parent, [&](HWND child) {
    return ClassOf(child) == className && (text.empty() || TextOf(child).starts_with(text));
  });
}

std::string BoxText(HWND box) {
  std::string text;
  FindChild(box, [&](HWND child) {
    if (ClassOf(child) == "Static") text = TextOf(child).empty() ? text : TextOf(child);
    return !text.empty();
  });
  return text;
}

}  // namespace dayvane::session
