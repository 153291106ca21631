// SPDX-License-Identifier: MIT
#include "windows/files/SingleInstance.h"

namespace dayvane {

std::optional<SingleInstance> SingleInstance::Acquire(const wchar_t* name) {
  files::ObjectHandle mutex(CreateMutexW(nullptr, FALSE, name));
  const bool isHeld = GetLastError() == ERROR_ALREADY_EXISTS;
  if (!mutex.IsOpen() || isHeld) return std::nullopt;
  return SingleInstance(std::move(mutex));
}

}  // namespace dayvane
