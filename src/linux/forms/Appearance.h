// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QString>
#include <string>
#include <utility>

#include "linux/tray/BusObject.h"

namespace dayvane::widgets {

/// Whether the text is the lighter of the two.
bool IsDark(const QColor& background, const QColor& text);

/// Text's colour, weakened towards the background's: 1 is the text's own, 0 the background.
QColor Ink(const QPalette& palette, qreal strength);

/// The colour of a selection in a view that does not have the keyboard: a grey between background and text.
QColor MutedSelection(const QPalette& palette);

/// The palette of a dark window, for the Fusion style.
QPalette DarkPalette();

/// The palette of a window that is easy to read for weak eyes: two colours and one accent.
QPalette HighContrastPalette(bool dark);

/// Lets the program's windows be dark, or of high contrast, when the user wants such windows, at once when that wish
/// changes. The wish is the desktop portal's (org.freedesktop.portal.Settings); a desktop whose own Qt theme is dark is
/// not darkened further.
class Appearance {
 public:
  Appearance();

  void SetDark(bool dark) {
    if (std::exchange(m_dark, dark) != dark) Show();
  }
  void SetHighContrast(bool highContrast) {
    if (std::exchange(m_highContrast, highContrast) != highContrast) Show();
  }

 private:
  void Ask();
  void AskFor(const char* space, const char* key);
  void Read(const std::string& space, const std::string& key, GVariant* setting);
  void Show();

  QPalette m_usualPalette;
  QString m_usualStyle;
  bool m_dark = false;
  bool m_highContrast = false;
  bool m_portalContrast = false;  ///< either wish is enough
  bool m_gnomeContrast = false;
  BusObject m_settings;
};

}  // namespace dayvane::widgets
