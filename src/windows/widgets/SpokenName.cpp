// SPDX-License-Identifier: MIT
#include "windows/widgets/SpokenName.h"

#include <oleacc.h>

#include "windows/launch/ComObject.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

using NamingService = launch::ComObject<IAccPropServices>;

constexpr auto kPart = static_cast<DWORD>(OBJID_CLIENT);  // what the window shows, without its frame

/// The compiler's header does not tell the interface's number by its type.
NamingService FindNamingService() {
  void* service = nullptr;
  CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, &service);
  return NamingService(static_cast<IAccPropServices*>(service));
}

}  // namespace

void SpeakName(HWND window, const std::string& name) {
  const NamingService service = FindNamingService();
  if (!service) return;
  const HRESULT named = service->SetHwndPropStr(window, kPart, CHILDID_SELF, PROPID_ACC_NAME, ShownText(name).c_str());
  if (SUCCEEDED(named)) NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window, OBJID_CLIENT, CHILDID_SELF);
}

void ForgetSpokenName(HWND window) {
  if (const NamingService service = FindNamingService())
    service->ClearHwndProps(window, kPart, CHILDID_SELF, &PROPID_ACC_NAME, 1);
}

}  // namespace dayvane::widgets
