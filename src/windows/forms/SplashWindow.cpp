// SPDX-License-Identifier: MIT
#include "windows/forms/SplashWindow.h"

#include <algorithm>

#include "resources/MResourceConstants.h"
#include "shell/FSplash.h"
#include "windows/forms/ScreenFit.h"
#include "windows/widgets/Pictures.h"

namespace dayvane::widgets {

namespace {

// At 96 dots per inch.
constexpr int kLogo = 168;  ///< of the square that it lies in
constexpr int kSplashMargin = 24;
constexpr int kTextWidth = 300;
constexpr int kLineGap = 4;
constexpr int kTextGap = 12;  ///< between groups of texts

constexpr double kTitleSize = 2.4;  ///< in the usual text's

bool IsRelease(UINT message) {
  return message == WM_LBUTTONUP || message == WM_RBUTTONUP || message == WM_MBUTTONUP;
}

}  // namespace

SplashWindow::SplashWindow(FSplash& splash)
    : TopWindow({.className = L"Dayvane.Splash",
                 .style = WS_POPUP | WS_BORDER | WS_CLIPCHILDREN,
                 .extendedStyle = WS_EX_TOPMOST,
                 .icon = kNormalIcon}),
      m_splash(splash),
      m_product(splash.lblProductName, Handle(), CurrentLook(), kTitleSize),
      m_version(splash.lblVersion, Handle(), CurrentLook()),
      m_company(splash.lblCompany, Handle(), CurrentLook()),
      m_copyright(splash.lblCopyright, Handle(), CurrentLook()),
      m_warning(splash.lblWarning, Handle(), CurrentLook()),
      m_form(splash.form, *this, Handle()) {
  m_texts.Add(m_product, 0);
  m_texts.Add(m_version, kLineGap);
  m_texts.Add(m_company, kTextGap);
  m_texts.Add(m_copyright, kLineGap);
  m_texts.Add(m_warning, kTextGap);
  m_isReady = true;
  m_form.MoveTo(CentredIn(AvailableScreenAt({0, 0}), LayOut()));
}

SIZE SplashWindow::LayOut() {
  const Look& look = *CurrentLook();
  const int margin = look.Pixels(kSplashMargin);
  const int logo = look.Pixels(kLogo);
  const int width = look.Pixels(kTextWidth);
  const LONG texts = m_texts.SizeWithin(width, look).cy;
  const LONG inside = std::max<LONG>(logo, texts);
  const LONG logoTop = margin + (inside - logo) / 2;
  m_logo = PictureIcon(m_splash.imgLogo.Picture(), logo);
  m_logoPlace = {margin, logoTop, margin + logo, logoTop + logo};
  m_texts.Place({2 * margin + logo, margin + (inside - texts) / 2}, width, look);
  const int border = 2 * GetSystemMetricsForDpi(SM_CXBORDER, look.Dpi());
  return {3 * margin + logo + width + border, 2 * margin + inside + border};
}

void SplashWindow::LookChanged() {
  m_texts.SetLook(CurrentLook());
  const SIZE size = LayOut();
  SetWindowPos(Handle(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void SplashWindow::Paint() {
  PAINTSTRUCT paint{};
  const HDC context = BeginPaint(Handle(), &paint);
  if (context == nullptr) return;
  if (m_logo != nullptr)
    DrawIconEx(context, m_logoPlace.left, m_logoPlace.top, m_logo.get(), m_logoPlace.right - m_logoPlace.left,
               m_logoPlace.bottom - m_logoPlace.top, 0, nullptr, DI_NORMAL);
  EndPaint(Handle(), &paint);
}

LRESULT SplashWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady || message == WM_SETFOCUS) return TopWindow::OnMessage(message, wParam, lParam);
  if (message == WM_PAINT) return Paint(), 0;
  // At its release, or that would reach the window that comes next. Keys are the form's.
  if (IsRelease(message)) return m_splash.Click(), 0;
  if (const auto answer = m_form.OnMessage(message, wParam, lParam)) return *answer;
  return TopWindow::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::widgets
