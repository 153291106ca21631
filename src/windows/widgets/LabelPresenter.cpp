// SPDX-License-Identifier: MIT
#include "windows/widgets/LabelPresenter.h"

#include "windows/widgets/Window.h"

namespace dayvane::widgets {

std::string SpokenCaption(const std::string& caption) {
  std::string words = caption;
  std::erase(words, '&');
  if (words.ends_with(':')) words.pop_back();
  return words;
}

LabelPresenter::LabelPresenter(controls::Label& control, HWND parent, const SharedLook& look)
    : ChildWindow(control, {.className = WC_STATICW, .style = SS_LEFT}, parent, look), m_control(control) {
  Show();
}

SIZE LabelPresenter::IdealSize() const {
  return TextSize(CurrentLook()->TextFont(), ShownText(SpokenCaption(m_control.Caption()) + ':').c_str());
}

void LabelPresenter::ShowControl() {
  SetText(Handle(), m_control.Caption());
}

}  // namespace dayvane::widgets
