// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace dayvane {

/// The icon of one of the program's pictures (PictureId), crisp at every size; a number without a picture gives an
/// empty icon. It carries its own outlines and fills, so that it shows on light and dark backgrounds alike.
QIcon PictureIcon(int picture);

}  // namespace dayvane
