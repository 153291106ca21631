// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <map>
#include <oleacc.h>
#include <string>

#include "tests/windows/widgets/TestWindow.h"
#include "windows/launch/ComApartment.h"
#include "windows/widgets/ButtonPresenter.h"
#include "windows/widgets/CalendarPresenter.h"
#include "windows/widgets/SpokenName.h"

namespace dayvane::widgets {
namespace {

// Objects of COM end themselves; nobody ends them through an interface.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The system's service in this process, which remembers what the windows are called.
class NamingServiceOfTest final : public IAccPropServices, public IClassFactory {
 public:
  NamingServiceOfTest() {
    CoRegisterClassObject(CLSID_AccPropServices, static_cast<IClassFactory*>(this), CLSCTX_INPROC_SERVER,
                          REGCLS_MULTIPLEUSE, &m_registration);
  }
  NamingServiceOfTest(const NamingServiceOfTest&) = delete;
  NamingServiceOfTest& operator=(const NamingServiceOfTest&) = delete;
  ~NamingServiceOfTest() { CoRevokeClassObject(m_registration); }

  std::map<HWND, std::wstring> names;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** result) noexcept override {
    *result = nullptr;
    if (interfaceId == IID_IAccPropServices) *result = static_cast<IAccPropServices*>(this);
    if (interfaceId == IID_IClassFactory || interfaceId == IID_IUnknown) *result = static_cast<IClassFactory*>(this);
    return *result != nullptr ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID interfaceId, void** result) noexcept override {
    return QueryInterface(interfaceId, result);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }

  HRESULT STDMETHODCALLTYPE SetHwndPropStr(HWND window, DWORD part, DWORD child, MSAAPROPID property,
                                           LPCWSTR text) noexcept override {
    if (part == static_cast<DWORD>(OBJID_CLIENT) && child == CHILDID_SELF && property == PROPID_ACC_NAME)
      names[window] = text;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID*, int) noexcept override {
    if (IsWindow(window) != 0) names.erase(window);
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) noexcept override { return E_FAIL; }
  HRESULT STDMETHODCALLTYPE SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                          AnnoScope) noexcept override {
    return E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) noexcept override { return E_FAIL; }
  HRESULT STDMETHODCALLTYPE SetHwndProp(HWND, DWORD, DWORD, MSAAPROPID, VARIANT) noexcept override { return E_FAIL; }
  HRESULT STDMETHODCALLTYPE SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                              AnnoScope) noexcept override {
    return E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) noexcept override {
    return E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) noexcept override {
    return E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) noexcept override { return E_FAIL; }
  HRESULT STDMETHODCALLTYPE SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) noexcept override { return E_FAIL; }
  HRESULT STDMETHODCALLTYPE SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                               AnnoScope) noexcept override {
    return E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) noexcept override { return E_FAIL; }
  HRESULT STDMETHODCALLTYPE ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) noexcept override {
    return E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) noexcept override {
    return E_FAIL;
  }

 private:
  DWORD m_registration = 0;
};

#pragma GCC diagnostic pop

class SpokenNameTest : public ::testing::Test {
 protected:
  launch::ComApartment m_apartment;
  NamingServiceOfTest m_service;
  TestWindow m_window;
  controls::Calendar m_calendar;
};

TEST_F(SpokenNameTest, AScreenReaderIsToldWhatAControlIsCalled) {
  CalendarPresenter presenter(m_calendar, 1, m_window.Handle(), m_window.CurrentLook());

  EXPECT_TRUE(m_service.names[presenter.Handle()].starts_with(L"Calendar, "));

  presenter.SetSpokenName("Days Δ");

  EXPECT_EQ(m_service.names[presenter.Handle()], L"Days Δ");
}

TEST_F(SpokenNameTest, TheNameIsTakenBackBeforeTheWindowEnds) {
  {
    const CalendarPresenter presenter(m_calendar, 1, m_window.Handle(), m_window.CurrentLook());
    ASSERT_EQ(m_service.names.size(), 1);
  }

  EXPECT_TRUE(m_service.names.empty());
}

TEST_F(SpokenNameTest, TheNameIsTakenBackAlsoWhenTheParentEnds) {
  TestWindow parent;
  const CalendarPresenter presenter(m_calendar, 1, parent.Handle(), parent.CurrentLook());
  ASSERT_EQ(m_service.names.size(), 1);

  DestroyWindow(parent.Handle());

  EXPECT_TRUE(m_service.names.empty());
}

TEST_F(SpokenNameTest, AButtonIsCalledByItsCaption) {
  controls::Button button;
  button.SetCaption("&Help");

  const ButtonPresenter presenter(button, m_window.Handle(), m_window.CurrentLook());

  EXPECT_TRUE(m_service.names.empty());
}

TEST(WindowsSpokenName, WithoutTheServiceNothingHappens) {
  TestWindow window;

  SpeakName(window.Handle(), "Days");
  ForgetSpokenName(window.Handle());
}

}  // namespace
}  // namespace dayvane::widgets
