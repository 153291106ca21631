// SPDX-License-Identifier: MIT
#pragma once

#include "windows/files/Win32.h"
// clang-format off: the second needs the first
#include <richedit.h>
#include <richole.h>
// clang-format on

namespace dayvane::help {

// Objects of COM end themselves; nobody ends them through an interface.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// Gives the system's rich text memory to keep pictures in; without it, it shows none. It is counted like every object
/// of COM and belongs to whoever asks for it.
class PictureStorage final : public IRichEditOleCallback {  // NOLINT(*-virtual-class-destructor): it ends itself
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** result) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++m_count; }
  ULONG STDMETHODCALLTYPE Release() noexcept override;

  HRESULT STDMETHODCALLTYPE GetNewStorage(IStorage** storage) noexcept override;
  HRESULT STDMETHODCALLTYPE QueryInsertObject(CLSID* /*kind*/, IStorage* /*storage*/,
                                              LONG /*place*/) noexcept override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DeleteObject(IOleObject* /*object*/) noexcept override { return S_OK; }

  // What is not wanted of a page that is only read.
  HRESULT STDMETHODCALLTYPE GetInPlaceContext(IOleInPlaceFrame** /*frame*/, IOleInPlaceUIWindow** /*document*/,
                                              OLEINPLACEFRAMEINFO* /*information*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE ShowContainerUI(BOOL /*show*/) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE QueryAcceptData(IDataObject* /*data*/, CLIPFORMAT* /*format*/, DWORD /*purpose*/,
                                            BOOL /*really*/, HGLOBAL /*picture*/) noexcept override {
    return E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetClipboardData(CHARRANGE* /*range*/, DWORD /*purpose*/,
                                             IDataObject** /*data*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDragDropEffect(BOOL /*drag*/, DWORD /*keys*/, DWORD* /*effect*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetContextMenu(WORD /*selected*/, IOleObject* /*object*/, CHARRANGE* /*range*/,
                                           HMENU* /*menu*/) noexcept override {
    return E_NOTIMPL;
  }

 private:
  ~PictureStorage() = default;

  ULONG m_count = 0;
};

#pragma GCC diagnostic pop

}  // namespace dayvane::help
