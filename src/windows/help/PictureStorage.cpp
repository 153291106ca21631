// SPDX-License-Identifier: MIT
#include "windows/help/PictureStorage.h"

namespace dayvane::help {

HRESULT PictureStorage::QueryInterface(REFIID interfaceId, void** result) noexcept {
  *result = nullptr;
  if (interfaceId != IID_IUnknown && interfaceId != IID_IRichEditOleCallback) return E_NOINTERFACE;
  *result = static_cast<IRichEditOleCallback*>(this);
  AddRef();
  return S_OK;
}

ULONG PictureStorage::Release() noexcept {
  const ULONG count = --m_count;
  if (count == 0) delete this;
  return count;
}

HRESULT PictureStorage::GetNewStorage(IStorage** storage) noexcept {
  *storage = nullptr;
  ILockBytes* bytes = nullptr;
  if (const HRESULT made = CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes); FAILED(made)) return made;
  const HRESULT opened =
      StgCreateDocfileOnILockBytes(bytes, STGM_SHARE_EXCLUSIVE | STGM_CREATE | STGM_READWRITE, 0, storage);
  bytes->Release();
  return opened;
}

}  // namespace dayvane::help
