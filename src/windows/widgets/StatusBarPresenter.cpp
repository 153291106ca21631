// SPDX-License-Identifier: MIT
#include "windows/widgets/StatusBarPresenter.h"

#include <array>
#include <utility>

#include "windows/widgets/Pictures.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

// At 96 dots per inch.
constexpr int kRoomAboveStatus = 4;
constexpr int kPicture = 16;
constexpr int kRoomBesidePicture = 8;
constexpr int kGripWidth = 18;

constexpr WPARAM kTextPart = 0;
constexpr WPARAM kPicturePart = 1;

}  // namespace

StatusBarPresenter::StatusBarPresenter(controls::StatusBar& control, HWND parent, const SharedLook& look)
    : ChildWindow(control,
                  {.className = STATUSCLASSNAMEW,
                   .style = WS_CLIPSIBLINGS | CCS_NOPARENTALIGN | CCS_NORESIZE | SBARS_SIZEGRIP | SBARS_TOOLTIPS},
                  parent, look),
      m_control(control) {
  SetLook(look);
  Show();
}

int StatusBarPresenter::IdealHeight() const {
  return CurrentLook()->TextHeight() + 2 * CurrentLook()->Pixels(kRoomAboveStatus);
}

void StatusBarPresenter::SetLook(const SharedLook& look) {
  ChildWindow::SetLook(look);
  SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(look->StatusFont()), TRUE);
  ShowPicture(m_picture, m_words);
}

void StatusBarPresenter::ShowPicture(int picture, const std::string& words) {
  m_picture = picture;
  m_words = words;
  Icon shown = PictureIcon(picture, CurrentLook()->Pixels(kPicture));
  ShowParts();
  SendMessageW(Handle(), SB_SETICON, kPicturePart, reinterpret_cast<LPARAM>(shown.get()));
  SendMessageW(Handle(), SB_SETTIPTEXTW, kPicturePart,
               reinterpret_cast<LPARAM>(ShownText(picture != 0 ? words : "").c_str()));
  m_icon = std::move(shown);  // the bar has drawn the old one until now
}

void StatusBarPresenter::ShowParts() {
  RECT room{};
  GetClientRect(Handle(), &room);
  const Look& look = *CurrentLook();
  const int pictureRoom = m_picture == 0 ? 0 : look.Pixels(kPicture + kRoomBesidePicture + kGripWidth);
  const std::array<int, 2> ends{static_cast<int>(room.right) - pictureRoom, -1};
  SendMessageW(Handle(), SB_SETPARTS, m_picture == 0 ? 1 : ends.size(),
               reinterpret_cast<LPARAM>(m_picture == 0 ? &ends[1] : ends.data()));
  ShowControl();
}

void StatusBarPresenter::ShowControl() {
  SendMessageW(Handle(), SB_SETTEXTW, kTextPart | SBT_NOBORDERS,
               reinterpret_cast<LPARAM>(ShownText(m_control.Text()).c_str()));
}

LRESULT StatusBarPresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = ChildWindow::OnMessage(message, wParam, lParam);
  if (message == WM_SIZE) ShowParts();
  return answer;
}

}  // namespace dayvane::widgets
