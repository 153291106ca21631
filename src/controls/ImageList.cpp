// SPDX-License-Identifier: MIT
#include "controls/ImageList.h"

#include <utility>

#include "base/Error.h"

namespace dayvane::controls {

const Picture& ImageList::At(int index) const {
  if (index < 1 || index > Count()) throw Error(kSubscriptOutOfRange, "No image of number " + std::to_string(index));
  return m_images[static_cast<std::size_t>(index) - 1].picture;
}

int ImageList::Add(Picture picture, const std::string& key) {
  if (!key.empty() && !m_indexes.emplace(key, Count() + 1).second)
    throw Error(kKeyNotUnique, "Key is not unique in the image list: " + key);
  m_images.push_back({std::move(picture), key});
  return Count();
}

int ImageList::IndexOf(const std::string& key) const {
  const auto found = m_indexes.find(key);
  return found == m_indexes.end() ? 0 : found->second;
}

void ImageList::RemoveLast() {
  if (m_images.empty()) throw Error(kSubscriptOutOfRange, "The image list is empty");
  // By its key, not by a search: a day's pictures are all removed before the next day is listed.
  m_indexes.erase(m_images.back().key);
  m_images.pop_back();
}

}  // namespace dayvane::controls
