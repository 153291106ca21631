#pragma once

#include <string>
#include <unordered_map>
#include <vector>

namespace dayvane::controls {

/// A picture as the desktop knows it: the names of icons to try in order, or a number of the program's own resources
/// when there are none. Presenters draw it.
struct Picture {
  std::vector<std::string> iconNames;
  int resource = 0;

  friend bool operator==(const Picture&, const Picture&) = default;
};

/// Pictures numbered from 1, some of them with a key.
class ImageList {
 public:
  int Count() const { return static_cast<int>(m_pictures.size()); }

  /// Fails with kSubscriptOutOfRange outside 1 … Count.
  const Picture& At(int index) const;

  /// Returns the new picture's number. Fails with kKeyNotUnique for a key that is there already.
  int Add(Picture picture, const std::string& key = {});

  /// The number of the picture with this key, or 0.
  int IndexOf(const std::string& key) const;

  /// Removes the last picture; keeps the others' numbers.
  void RemoveLast();

 private:
  std::vector<Picture> m_pictures;
  std::unordered_map<std::string, int> m_indexes;
};

}  // namespace dayvane::controls
