// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <unordered_map>

#include "controls/ImageList.h"
#include "windows/widgets/GdiHandles.h"

namespace dayvane::widgets {

/// The controls' pictures as the system's controls draw them: images of one list for every size in pixels, which grows
/// as new pictures are asked for. Icons of the system are known by their names (launch/SystemIcon.h). A picture that
/// has no icon shows as a plain document.
class Icons {
 public:
  /// The list of the images of this size; lives as long as this.
  HIMAGELIST ImagesOf(int pixels) { return ListOf(pixels).images.get(); }

  /// Which image of that list a picture is.
  int IndexOf(const controls::Picture& picture, int pixels);

  /// The same for image `number` of a control's list; a plain document for a number that the list does not have, as
  /// while images are exchanged.
  int IndexOf(const controls::ImageList* images, int number, int pixels);

 private:
  struct List {
    ImageListHandle images;
    std::unordered_map<std::string, int> known;  ///< by the names of a picture
  };

  List& ListOf(int pixels);

  std::map<int, List> m_lists;  ///< by size
};

}  // namespace dayvane::widgets
