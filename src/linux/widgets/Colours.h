// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

namespace dayvane::widgets {

/// Whether the text is the lighter of the two.
bool IsDark(const QColor& background, const QColor& text);

/// Text's colour, weakened towards the background's: 1 is the text's own, 0 the background.
QColor Ink(const QPalette& palette, qreal strength);

/// The colour of a selection in a view that does not have the keyboard: a grey between background and text.
QColor MutedSelection(const QPalette& palette);

}  // namespace dayvane::widgets
