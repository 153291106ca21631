// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

namespace dayvane::widgets {

/// A window's place as near to the wanted one as fits the available part of a screen, the frame included.
QRect FitToScreen(const QRect& wanted, const QRect& available, const QSize& frame);

/// The available part of the screen that shows most of the rectangle; the primary screen's when none does.
QRect AvailableScreenFor(const QRect& wanted);

}  // namespace dayvane::widgets
