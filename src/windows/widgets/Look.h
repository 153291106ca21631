// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "windows/widgets/GdiHandles.h"

namespace dayvane::widgets {

/// How the user wants windows to look on a screen: the system's fonts in the sizes for its dots per inch. Windows that
/// go to another screen, or whose user chooses other fonts, get another one.
class Look {
 public:
  explicit Look(UINT dpi);

  UINT Dpi() const { return m_dpi; }
  HFONT TextFont() const { return m_text.get(); }  ///< of messages and controls
  HFONT BoldFont() const { return m_bold.get(); }
  HFONT StatusFont() const { return m_status.get(); }

  /// A length that is designed for 96 dots per inch.
  int Pixels(int at96) const { return MulDiv(at96, static_cast<int>(m_dpi), USER_DEFAULT_SCREEN_DPI); }

  int TextHeight() const { return m_textHeight; }  ///< of a line of the text font

 private:
  UINT m_dpi;
  Font m_text;
  Font m_bold;
  Font m_status;
  int m_textHeight = 0;
};

using SharedLook = std::shared_ptr<const Look>;

/// The screen with a font, to measure texts.
class MeasuringDevice {
 public:
  explicit MeasuringDevice(HFONT font) : m_device(GetDC(nullptr)), m_old(SelectObject(m_device, font)) {}
  MeasuringDevice(const MeasuringDevice&) = delete;
  MeasuringDevice& operator=(const MeasuringDevice&) = delete;
  ~MeasuringDevice() {
    SelectObject(m_device, m_old);
    ReleaseDC(nullptr, m_device);
  }

  HDC Get() const { return m_device; }

 private:
  HDC m_device;
  HGDIOBJ m_old;
};

/// The pixels that a text of one line takes in a font.
SIZE TextSize(HFONT font, const wchar_t* text);

}  // namespace dayvane::widgets
