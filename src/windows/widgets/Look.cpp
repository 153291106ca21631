// SPDX-License-Identifier: MIT
#include "windows/widgets/Look.h"

#include <cwchar>

namespace dayvane::widgets {

SIZE TextSize(HFONT font, const wchar_t* text) {
  SIZE size{};
  const MeasuringDevice screen(font);
  GetTextExtentPoint32W(screen.Get(), text, static_cast<int>(std::wcslen(text)), &size);
  return size;
}

Look::Look(UINT dpi) : m_dpi(dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
  m_text.reset(CreateFontIndirectW(&metrics.lfMessageFont));
  m_status.reset(CreateFontIndirectW(&metrics.lfStatusFont));
  metrics.lfMessageFont.lfWeight = FW_BOLD;
  m_bold.reset(CreateFontIndirectW(&metrics.lfMessageFont));
  m_textHeight = TextSize(m_text.get(), L"Ág").cy;
}

}  // namespace dayvane::widgets
