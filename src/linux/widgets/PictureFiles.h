#pragma once

#include <QIcon>

namespace dayvane::widgets {

/// The icon of one of the program's pictures; empty for a number without one.
QIcon PictureIcon(int picture);

}  // namespace dayvane::widgets
