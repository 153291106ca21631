// SPDX-License-Identifier: MIT
#pragma once

#include "windows/files/Win32.h"

namespace dayvane::launch {

/// Lets its thread, the one that has the windows, use the shell's objects for as long as it lives. Where that fails
/// there are no such objects, and whoever needs one does without.
class ComApartment {
 public:
  ComApartment() : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;
  ~ComApartment() {
    if (SUCCEEDED(m_result)) CoUninitialize();
  }

 private:
  HRESULT m_result;
};

}  // namespace dayvane::launch
