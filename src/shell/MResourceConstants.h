#pragma once

namespace dayvane {

/// Numbers of the program's pictures. A platform maps them to what it can draw.
enum PictureId : int {
  kNoPicture = 0,

  // One picture per level of the day tree; the number is the level.
  kRepositoryPicture = 1,
  kYearPicture = 2,
  kMonthPicture = 3,
  kDayPicture = 4,

  // The program's icon resources.
  kLogoPicture = 101,
  kNormalIcon = 102,
  kBusyIcon = 103,
  kSuspendedIcon = 104,

  kDefaultDocumentPicture = 110,  ///< a document whose own icon cannot be had

  kToolbarPictures = 200,  ///< the first toolbar button's; see ToolbarPicture
};

inline constexpr int kToolbarButtons = 12;

/// Picture of a toolbar button, 0 … kToolbarButtons - 1.
constexpr PictureId ToolbarPicture(int button) {
  return static_cast<PictureId>(kToolbarPictures + button);
}

}  // namespace dayvane
