// SPDX-License-Identifier: MIT
#include "windows/help/HelpPopup.h"

#include <algorithm>

#include "windows/forms/ScreenFit.h"
#include "windows/help/HelpBrowser.h"

namespace dayvane::help {

namespace {

// Pixels at 96 dots per inch.
constexpr int kTextWidth = 340;
constexpr int kTextMargin = 8;
constexpr int kBelowPointer = 12;  ///< between the place asked about and the window

/// The look of the screen that the window is to open on.
widgets::SharedLook LookAt(HWND window, POINT at) {
  const RECT room = widgets::AvailableScreenAt(at);
  SetWindowPos(window, nullptr, std::clamp(at.x, room.left, room.right - 1),
               std::clamp(at.y, room.top, room.bottom - 1), 1, 1, SWP_NOZORDER | SWP_NOACTIVATE);
  return std::make_shared<widgets::Look>(GetDpiForWindow(window));
}

}  // namespace

HelpPopup::HelpPopup(const HelpFile& file, const Topic& topic, POINT at, HWND owner)
    : Window({L"Dayvane.HelpPopup", WS_POPUP | WS_BORDER | WS_CLIPCHILDREN, WS_EX_TOPMOST | WS_EX_TOOLWINDOW, owner,
              CS_DROPSHADOW, COLOR_INFOBK}),
      m_look(LookAt(Handle(), at)),
      m_page(Handle(), m_look, WS_VISIBLE) {
  widgets::SetText(Handle(), topic.title);
  m_page.LinkChosen = [this](const std::string& name) {
    Close();
    if (TopicChosen) TopicChosen(name);
  };
  m_page.Clicked = [this] { Close(); };
  ShowText(file, topic);
  OpenAt(at);
}

void HelpPopup::ShowText(const HelpFile& file, const Topic& topic) {
  const int margin = m_look->Pixels(kTextMargin);
  const int width = m_look->Pixels(kTextWidth) + 2 * margin;
  m_page.PlaceWithMargin({0, 0, width, m_look->Pixels(100)}, margin);
  PagePictures pictures(&file, m_look->Dpi(), ScaleOf(m_page));
  LayOutPage(m_page, topic.title, ReadMarkup(topic.body), ColoursOf(COLOR_INFOBK, COLOR_INFOTEXT), pictures, 0, true);
  m_page.PlaceWithMargin({0, 0, width, m_page.PageHeight() + margin + m_look->Pixels(4)}, margin);
}

void HelpPopup::OpenAt(POINT at) const {
  RECT size;
  GetWindowRect(m_page.Handle(), &size);
  OffsetRect(&size, -size.left, -size.top);
  AdjustWindowRectEx(&size, WS_POPUP | WS_BORDER, FALSE, WS_EX_TOOLWINDOW);
  const RECT room = widgets::AvailableScreenAt(at);
  const LONG width = size.right - size.left;
  const LONG height = std::min(size.bottom - size.top, room.bottom - room.top);
  POINT corner{at.x, at.y + m_look->Pixels(kBelowPointer)};
  // Above the place rather than over it, where there is no room below.
  if (corner.y + height > room.bottom) corner.y = at.y - m_look->Pixels(kBelowPointer) - height;
  corner.x = std::max(room.left, std::min(corner.x, room.right - width));
  corner.y = std::max(room.top, std::min(corner.y, room.bottom - height));
  SetWindowPos(Handle(), HWND_TOPMOST, corner.x, corner.y, width, height, SWP_SHOWWINDOW);
  SetFocus(Handle());
}

/// It stays as a window that nobody sees until the next one opens: it must not end in the middle of what it is told.
void HelpPopup::Close() const {
  ShowWindow(Handle(), SW_HIDE);
}

LRESULT HelpPopup::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case kHelpKey:
      Close();
      return TRUE;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
      Close();
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) Close();
      return 0;
    default:
      return Window::OnMessage(message, wParam, lParam);
  }
}

}  // namespace dayvane::help
