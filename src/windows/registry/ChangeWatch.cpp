// SPDX-License-Identifier: MIT
#include "windows/registry/ChangeWatch.h"

#include "app/IgnoreErrors.h"

namespace dayvane::registry {

ChangeWatch::ChangeWatch(HKEY above, const std::string& path) : m_signal(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  if (m_signal.IsOpen()) IgnoreErrors([&] { m_key = Key::Open(above, path, KEY_NOTIFY); });
  Begin();
}

bool ChangeWatch::HasChanged() {
  if (!m_key || WaitForSingleObject(m_signal.Get(), 0) != WAIT_OBJECT_0) return false;
  Begin();
  return true;
}

void ChangeWatch::Begin() {
  // The system tells of one change and then no more, so that it is asked anew before anything is read again.
  constexpr DWORD kChanges = REG_NOTIFY_CHANGE_NAME | REG_NOTIFY_CHANGE_LAST_SET | REG_NOTIFY_THREAD_AGNOSTIC;
  ResetEvent(m_signal.Get());
  if (m_key && RegNotifyChangeKeyValue(m_key->Get(), TRUE, kChanges, m_signal.Get(), TRUE) != ERROR_SUCCESS)
    m_key.reset();
}

}  // namespace dayvane::registry
