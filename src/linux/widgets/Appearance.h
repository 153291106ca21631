#pragma once

#include <QPalette>
#include <QString>

#include "linux/widgets/BusObject.h"

namespace dayvane::widgets {

/// The palette of a dark window, for the Fusion style.
QPalette DarkPalette();

/// Lets the program's windows be dark when the user wants dark windows, at once when that wish changes. The wish is
/// the desktop portal's (org.freedesktop.appearance, color-scheme); a desktop whose own Qt theme is dark is left alone.
class Appearance {
 public:
  Appearance();

  void SetDark(bool dark);

 private:
  void Ask();
  void Read(GVariant* setting);

  QPalette m_usualPalette;
  QString m_usualStyle;
  bool m_dark = false;
  BusObject m_settings;
};

}  // namespace dayvane::widgets
