// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ShellIcons.h"

namespace dayvane::controls {

using platform::Picture;

/// Pictures numbered from 1, some of them with a key.
class ImageList {
 public:
  int Count() const { return static_cast<int>(m_images.size()); }

  /// Fails with kSubscriptOutOfRange outside 1 … Count.
  const Picture& At(int index) const;

  /// Returns the new picture's number. Fails with kKeyNotUnique for a key that is there already.
  int Add(Picture picture, const std::string& key = {});

  /// The number of the picture with this key, or 0.
  int IndexOf(const std::string& key) const;

  /// Removes the last picture; keeps the others' numbers.
  void RemoveLast();

 private:
  struct Image {
    Picture picture;
    std::string key;
  };

  std::vector<Image> m_images;
  std::unordered_map<std::string, int> m_indexes;
};

}  // namespace dayvane::controls
