// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ListView.h"

class QListView;

namespace dayvane::widgets {

class RowDelegate;

/// Makes an icon view draw large icons, small icons or a list. Rows count as equally large: measuring 50,000 texts
/// would take half a second.
void SetIconStyle(QListView& view, RowDelegate& delegate, controls::ListStyle style, controls::ListArrange arrange);

}  // namespace dayvane::widgets
