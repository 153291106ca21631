// SPDX-License-Identifier: MIT
#include "tests/windows/session/RemoteMemory.h"

#include <array>
#include <stdexcept>

#include "windows/files/WideText.h"

namespace dayvane::session {

namespace {

constexpr std::size_t kRoomSize = RemoteMemory::kTextOffset + RemoteMemory::kTextLength * sizeof(wchar_t);

HANDLE OpenProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  const HANDLE opened = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process);
  if (opened == nullptr) throw std::runtime_error("the program of a window is gone");
  return opened;
}

}  // namespace

LRESULT Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  constexpr UINT kMilliseconds = 60'000;
  DWORD_PTR answer = 0;
  if (SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kMilliseconds, &answer) == 0)
    throw std::runtime_error("message " + std::to_string(message) + " was not answered");
  return static_cast<LRESULT>(answer);
}

RemoteMemory::RemoteMemory(HWND window)
    : m_window(window),
      m_process(OpenProcessOf(window)),
      m_room(static_cast<std::byte*>(
          VirtualAllocEx(m_process.Get(), nullptr, kRoomSize, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE))) {
  if (m_room == nullptr) throw std::runtime_error("no room in the program");
}

RemoteMemory::~RemoteMemory() {
  VirtualFreeEx(m_process.Get(), m_room, 0, MEM_RELEASE);
}

LRESULT RemoteMemory::Ask(UINT message, WPARAM wParam) const {
  return session::Ask(m_window, message, wParam, reinterpret_cast<LPARAM>(m_room));
}

std::string RemoteMemory::ReadText(std::size_t offset) const {
  std::array<wchar_t, kTextLength> text{};
  ReadBytes(text.data(), sizeof text - sizeof(wchar_t) - (offset > kTextOffset ? offset - kTextOffset : 0), offset);
  return files::FromWide(text.data()).value_or("(not UTF-16)");
}

void RemoteMemory::WriteBytes(const void* bytes, std::size_t size) {
  if (WriteProcessMemory(m_process.Get(), m_room, bytes, size, nullptr) == 0)
    throw std::runtime_error("cannot write to the program");
}

void RemoteMemory::ReadBytes(void* bytes, std::size_t size, std::size_t offset) const {
  if (ReadProcessMemory(m_process.Get(), m_room + offset, bytes, size, nullptr) == 0)
    throw std::runtime_error("cannot read from the program");
}

}  // namespace dayvane::session
