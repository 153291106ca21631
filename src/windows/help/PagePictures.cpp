// SPDX-License-Identifier: MIT
#include "windows/help/PagePictures.h"

#include <algorithm>
#include <cmath>

namespace dayvane::help {

namespace {

constexpr double kTwipsPerPagePixel = 15;
constexpr std::size_t kMostDrawn = 64;

}  // namespace

const std::string& PagePictures::RichText(const Piece& picture, COLORREF background) {
  std::string key = picture.picture;
  for (const long number :
       {static_cast<long>(picture.width), static_cast<long>(picture.height), static_cast<long>(background)})
    key += " " + std::to_string(number);
  if (const auto found = m_drawn.find(key); found != m_drawn.end()) return found->second;
  if (m_drawn.size() == kMostDrawn) m_drawn.clear();
  return m_drawn[key] = Draw(picture, background);
}

std::string PagePictures::Draw(const Piece& picture, COLORREF background) const {
  if (m_file == nullptr) return {};
  const std::optional<Picture> decoded = DecodePicture(m_file->Picture(picture.picture));
  if (!decoded || picture.width <= 0 || picture.height <= 0) return {};
  const auto pixels = [&](int length) {
    return std::max(1, MulDiv(length, static_cast<int>(m_dpi), USER_DEFAULT_SCREEN_DPI));
  };
  const auto twips = [&](int length) { return static_cast<int>(std::lround(length * kTwipsPerPagePixel * m_scale)); };
  return RichPicture(Drawn(*decoded, pixels(picture.width), pixels(picture.height), background), twips(picture.width),
                     twips(picture.height));
}

}  // namespace dayvane::help
