// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QString>
#include <string>
#include <utility>

#include "linux/glib/BusObject.h"

namespace dayvane::widgets {

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
  glib::BusObject m_settings;
};

}  // namespace dayvane::widgets
