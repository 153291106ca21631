// SPDX-License-Identifier: MIT
#include "windows/widgets/NumberFieldPresenter.h"

#include <cstdlib>
#include <string>

#include "windows/files/WideText.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

constexpr int kUsualDigits = 8;
constexpr int kArrowsWidth = 20;     ///< at 96 dots per inch
constexpr int kRoomAboveNumber = 4;  ///< at 96 dots per inch, with the frame
constexpr int kRoomOfCaret = 2;      ///< pixels that the system leaves above and below a line, together

}  // namespace

NumberFieldPresenter::NumberFieldPresenter(controls::TextBox& text, controls::UpDown& arrows, HWND parent,
                                           const SharedLook& look)
    : ChildWindow(
          text,
          {.className = WC_EDITW, .style = ES_LEFT | ES_AUTOHSCROLL | WS_TABSTOP, .extendedStyle = WS_EX_CLIENTEDGE},
          parent, look),
      m_text(text),
      m_upDown(arrows),
      m_arrows(arrows, *this, parent, look) {
  m_selectionWanted = text.SelectionWanted.ConnectScoped([this] { ShowSelection(); });
  m_isReady = true;
  Show();
}

SIZE NumberFieldPresenter::IdealSize() const {
  const Look& look = *CurrentLook();
  const SIZE digits = TextSize(look.TextFont(), std::wstring(kUsualDigits, L'0').c_str());
  return {digits.cx + look.Pixels(kArrowsWidth), digits.cy + 2 * look.Pixels(kRoomAboveNumber)};
}

void NumberFieldPresenter::Place(const RECT& place) {
  const int width = place.right - place.left;
  SetWindowPos(Handle(), nullptr, place.left, place.top, width, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  // The arrows take their room from the field.
  SendMessageW(m_arrows.Handle(), UDM_SETBUDDY, reinterpret_cast<WPARAM>(Handle()), 0);
}

void NumberFieldPresenter::ShowControl() {
  const std::wstring shown = ShownText(m_text.Text());
  if (WideTextOf(Handle()) != shown) SetWindowTextW(Handle(), shown.c_str());
}

void NumberFieldPresenter::ShowSelection() {
  SendMessageW(Handle(), EM_SETSEL, static_cast<WPARAM>(m_text.SelStart()),
               static_cast<LPARAM>(m_text.SelStart()) + m_text.SelLength());
}

std::optional<LRESULT> NumberFieldPresenter::OnCommand(UINT code) {
  if (code != EN_CHANGE || !m_isReady) return std::nullopt;
  if (auto text = files::FromWide(WideTextOf(Handle()))) m_text.SetText(*std::move(text));
  return 0;
}

LRESULT NumberFieldPresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return ChildWindow::OnMessage(message, wParam, lParam);
  if (const auto answer = OnFrame(message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_CHAR: {
      // Commands such as Ctrl+C come as characters too.
      const bool isTyped = wParam >= L' ' || wParam == VK_BACK;
      if (isTyped && !m_text.Type(static_cast<int>(wParam))) return 0;
      break;
    }
    case WM_KEYDOWN:
      if (wParam != VK_UP && wParam != VK_DOWN) break;
      StepBy(wParam == VK_UP ? 1 : -1);
      return 0;
    case WM_MOUSEWHEEL:
      Turn(GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    case WM_SETFOCUS: {
      const LRESULT answer = ChildWindow::OnMessage(message, wParam, lParam);
      m_text.GotFocus.Raise();
      return answer;
    }
    default:
      break;
  }
  return ChildWindow::OnMessage(message, wParam, lParam);
}

/// What is around the line of text; nothing for every other message.
std::optional<LRESULT> NumberFieldPresenter::OnFrame(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_NCCALCSIZE && message != WM_NCPAINT && message != WM_NCHITTEST) return std::nullopt;
  const LRESULT answer = ChildWindow::OnMessage(message, wParam, lParam);
  if (message == WM_NCCALCSIZE) NarrowToLine(*reinterpret_cast<RECT*>(lParam));  // the first thing in both its forms
  if (message == WM_NCPAINT) FillAroundLine();
  if (message == WM_NCHITTEST && (answer == HTNOWHERE || answer == HTBORDER)) return HTCLIENT;
  return answer;
}

void NumberFieldPresenter::NarrowToLine(RECT& inside) const {
  // The system draws a single line at the top of its room, however high that is: the line gets the middle of it.
  const LONG line = CurrentLook()->TextHeight() + kRoomOfCaret;
  const LONG above = (inside.bottom - inside.top - line) / 2;
  if (above <= 0) return;
  inside.top += above;
  inside.bottom = inside.top + line;
}

void NumberFieldPresenter::FillAroundLine() const {
  RECT frame{};
  RECT line{};
  GetWindowRect(Handle(), &frame);
  GetClientRect(Handle(), &line);
  MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&line), 2);
  OffsetRect(&line, -frame.left, -frame.top);
  const int edge = GetSystemMetricsForDpi(SM_CYEDGE, CurrentLook()->Dpi());
  const RECT above{line.left, edge, line.right, line.top};
  const RECT below{line.left, line.bottom, line.right, frame.bottom - frame.top - edge};
  HDC device = GetWindowDC(Handle());
  HBRUSH paper = GetSysColorBrush(IsWindowEnabled(Handle()) != 0 ? COLOR_WINDOW : COLOR_3DFACE);
  for (const RECT& room : {above, below}) FillRect(device, &room, paper);
  ReleaseDC(Handle(), device);
}

void NumberFieldPresenter::Turn(int delta) {
  m_turned += delta;
  const int steps = m_turned / WHEEL_DELTA;
  m_turned -= steps * WHEEL_DELTA;
  StepBy(steps);
}

void NumberFieldPresenter::StepBy(int steps) {
  controls::Signal<>& click = steps > 0 ? m_upDown.UpClick : m_upDown.DownClick;
  for (int step = 0; step < std::abs(steps); ++step) {
    const std::string before = m_text.Text();
    click.Raise();
    if (m_text.Text() == before) return;
  }
}

NumberFieldPresenter::Arrows::Arrows(controls::UpDown& control, NumberFieldPresenter& field, HWND parent,
                                     const SharedLook& look)
    : ChildWindow(control, {.className = UPDOWN_CLASSW, .style = UDS_ALIGNRIGHT}, parent, look), m_field(field) {
  // It always stands in the middle and tells each step; what a step does is the program's business.
  constexpr int kFar = 1 << 20;
  SendMessageW(Handle(), UDM_SETRANGE32, static_cast<WPARAM>(-kFar), kFar);
  Show();
}

std::optional<LRESULT> NumberFieldPresenter::Arrows::OnNotify(NMHDR& notice) {
  if (notice.code != UDN_DELTAPOS) return std::nullopt;
  m_field.StepBy(reinterpret_cast<const NMUPDOWN&>(notice).iDelta > 0 ? 1 : -1);
  return TRUE;  // it stays where it is
}

}  // namespace dayvane::widgets
