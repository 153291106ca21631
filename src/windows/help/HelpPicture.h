// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "windows/files/Win32.h"

/// Pictures of the help file, from PNG to what the system's rich text draws.
namespace dayvane::help {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  ///< from the top; alpha highest, then red, green, blue times alpha
};

/// Nothing for bytes that are no picture, or one with a side of more than kLongestSide pixels.
std::optional<Picture> DecodePicture(std::string_view png);

inline constexpr int kLongestSide = 4096;

/// The picture in another size, opaque on a background: each pixel is the mean of those that it stands for. The size
/// must be positive.
Picture Drawn(const Picture& picture, int width, int height, COLORREF background);

/// An opaque picture as RTF, to be shown in a size in twips.
std::string RichPicture(const Picture& picture, int twipsWide, int twipsHigh);

}  // namespace dayvane::help
