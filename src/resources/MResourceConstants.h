// SPDX-License-Identifier: MIT
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

  // Of messages, and of the status bar while capture is suspended.
  kInformationPicture = 120,
  kQuestionPicture = 121,
  kWarningPicture = 122,
  kSuspendedPicture = 123,

  // The toolbar's buttons.
  kDailyViewPicture = 200,
  kFavoritesViewPicture = 201,
  kExploreFolderPicture = 203,
  kOpenFolderPicture = 204,
  kFindDocumentPicture = 205,
  kLargeIconViewPicture = 206,
  kSmallIconViewPicture = 207,
  kListViewPicture = 208,
  kDetailViewPicture = 209,
  kMainWindowHelpPicture = 210,
  kWhatsThisHelpPicture = 211,
};

}  // namespace dayvane
