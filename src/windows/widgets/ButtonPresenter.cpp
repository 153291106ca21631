// SPDX-License-Identifier: MIT
#include "windows/widgets/ButtonPresenter.h"

#include <algorithm>

#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

// At 96 dots per inch: the sizes of the system's own boxes.
constexpr int kLeastWidth = 75;
constexpr int kRoomBesideText = 12;
constexpr int kRoomAboveText = 4;

}  // namespace

ButtonPresenter::ButtonPresenter(controls::Button& control, HWND parent, const SharedLook& look)
    : ChildWindow(control, {.className = WC_BUTTONW, .style = BS_PUSHBUTTON | WS_TABSTOP}, parent, look),
      m_control(control) {
  Show();
}

SIZE ButtonPresenter::IdealSize() const {
  const Look& look = *CurrentLook();
  const SIZE text = TextSize(look.TextFont(), ShownText(m_control.Caption()).c_str());
  return {std::max<LONG>(look.Pixels(kLeastWidth), text.cx + 2 * look.Pixels(kRoomBesideText)),
          text.cy + 2 * look.Pixels(kRoomAboveText)};
}

void ButtonPresenter::ShowControl() {
  SetText(Handle(), m_control.Caption());
}

std::optional<LRESULT> ButtonPresenter::OnCommand(UINT code) {
  if (code != BN_CLICKED) return std::nullopt;
  m_deferred.AfterWork([this] { m_control.Press(); });
  return 0;
}

}  // namespace dayvane::widgets
