// SPDX-License-Identifier: MIT
#include "windows/forms/OptionsWindow.h"

#include <algorithm>
#include <array>

#include "settings/FOptions.h"

namespace dayvane::widgets {

namespace {

// At 96 dots per inch.
constexpr int kEdge = 12;
constexpr int kLabelGap = 16;
constexpr int kRowGap = 6;
constexpr int kButtonsGap = 18;
constexpr int kButtonGap = 8;

}  // namespace

OptionsWindow::OptionsWindow(FOptions& options, HWND owner)
    : DialogWindow(options.form, L"Dayvane.Options", owner, WS_EX_CONTEXTHELP) {
  for (std::size_t i = 0; i < FOptions::kFields; ++i) {
    m_labels.push_back(std::make_unique<LabelPresenter>(options.lblOptions[i], Handle(), CurrentLook()));
    m_fields.push_back(
        std::make_unique<NumberFieldPresenter>(options.txtOptions[i], options.udOptions[i], Handle(), CurrentLook()));
  }
  constexpr std::array kNumbers{IDOK, IDCANCEL, IDHELP};
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    m_buttons.push_back(std::make_unique<ButtonPresenter>(options.cmdOptions[i], Handle(), CurrentLook()));
    Number(*m_buttons.back(), kNumbers[i]);
  }
  Begin();
}

void OptionsWindow::RelayLook() {
  for (const auto& label : m_labels) label->SetLook(CurrentLook());
  for (const auto& field : m_fields) field->SetLook(CurrentLook());
  for (const auto& button : m_buttons) button->SetLook(CurrentLook());
}

LONG OptionsWindow::WidthOfLabels() const {
  LONG widest = 0;
  for (const auto& label : m_labels) widest = std::max(widest, label->IdealSize().cx);
  return widest;
}

LONG OptionsWindow::PlaceFields(LONG margin, LONG labels) const {
  LONG top = margin;
  for (std::size_t i = 0; i < m_fields.size(); ++i) {
    const SIZE label = m_labels[i]->IdealSize();
    const SIZE field = m_fields[i]->IdealSize();
    PlaceChild(*m_labels[i], {margin, top + (field.cy - label.cy) / 2}, {labels, label.cy});
    const LONG left = margin + labels + CurrentLook()->Pixels(kLabelGap);
    m_fields[i]->Place({left, top, left + field.cx, top + field.cy});
    top += field.cy + CurrentLook()->Pixels(kRowGap);
  }
  return top;
}

LONG OptionsWindow::PlaceButtons(LONG right, LONG top) const {
  LONG bottom = top;
  for (std::size_t i = m_buttons.size(); i-- > 0;) {
    const SIZE size = m_buttons[i]->IdealSize();
    PlaceChild(*m_buttons[i], {right - size.cx, top}, size);
    right -= size.cx + CurrentLook()->Pixels(kButtonGap);
    bottom = std::max(bottom, top + size.cy);
  }
  return bottom;
}

SIZE OptionsWindow::LayOut() {
  const Look& look = *CurrentLook();
  const LONG margin = look.Pixels(kEdge);
  const LONG labels = WidthOfLabels();
  const LONG right = margin + labels + look.Pixels(kLabelGap) + m_fields.front()->IdealSize().cx;
  const LONG top = PlaceFields(margin, labels) + look.Pixels(kButtonsGap - kRowGap);
  return {right + margin, PlaceButtons(right, top) + margin};
}

}  // namespace dayvane::widgets
