// SPDX-License-Identifier: MIT
#include "windows/forms/TextPresenter.h"

#include <cmath>
#include <utility>

#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

Font FontOfSize(HFONT usual, double size) {
  LOGFONTW letters{};
  GetObjectW(usual, sizeof letters, &letters);
  letters.lfHeight = static_cast<LONG>(std::lround(letters.lfHeight * size));
  return Font(CreateFontIndirectW(&letters));
}

}  // namespace

TextPresenter::TextPresenter(controls::Label& control, HWND parent, const SharedLook& look, double size)
    : ChildWindow(control, {.className = WC_STATICW, .style = SS_LEFT | SS_NOPREFIX}, parent, look),
      m_control(control),
      m_size(size) {
  SetLetters(*look);
  Show();
}

SIZE TextPresenter::SizeWithin(int width) const {
  RECT room{0, 0, width, 0};
  const MeasuringDevice screen(m_font.get());
  DrawTextW(screen.Get(), ShownText(m_control.Caption()).c_str(), -1, &room,
            DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
  return {room.right, room.bottom};
}

void TextPresenter::SetLook(const SharedLook& look) {
  ChildWindow::SetLook(look);
  SetLetters(*look);
}

void TextPresenter::SetLetters(const Look& look) {
  Font font = FontOfSize(look.TextFont(), m_size);
  SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
  m_font = std::move(font);  // last: the window uses the old one until it has the new one
}

void TextPresenter::ShowControl() {
  SetText(Handle(), m_control.Caption());
}

}  // namespace dayvane::widgets
