// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dayvane {

/// Numbers of the texts that the program shows. They are the numbers of the classic string resource, so that a
/// translation or a log that names one stays valid; 106, 107 and 132 are not used.
enum StringId : int {
  kLegalWarning = 101,

  // The question before old days are purged; the purge date stands between kPurgeBefore and the full stop.
  kPurgeThereAreShortcuts = 102,
  kPurgeBefore = 103,
  kPurgeDoYouWant = 104,
  kPurgeDocumentsStay = 105,

  kVersionPrefix = 108,

  // What opening a document can say; the path stands between the two halves of a question.
  kOperatingSystemError = 109,
  kTheDocument = 110,
  kTheDocumentWasNotFound = 111,
  kThePath = 112,
  kThePathWasNotFound = 113,
  kDocumentsOfThisType = 114,
  kAreNotAssociated = 115,

  kDaily = 116,
  kFavorites = 117,

  // The report of an error is kErrorPrefix followed by one of these phrases.
  kErrorPrefix = 118,
  kStartingTheProgram = 119,
  kFindingLatestDay = 120,
  kExitingOrHiding = 121,
  kResizing = 122,
  kSavingSettings = 123,
  kSelectingDate = 124,
  kOpeningDocument = 125,
  kProcessingSelection = 126,
  kDisplayingContextMenu = 127,
  kArrangingIcons = 128,
  kSettingDocumentView = 129,
  kHidingSuspendingResuming = 130,
  kDisplayingHelp = 131,
  kLoadingWebPage = 133,
  kDisplayingAboutBox = 134,
  kHidingShowingSuspendingResuming = 135,
  kExploringFolder = 136,
  kPurgingDay = 137,
  kSettingActiveView = 138,
  kSettingOptions = 139,
  kOpeningFolder = 140,
  kCheckingForDocuments = 141,
  kChangingSortOrder = 142,
  kSelectingText = 143,
  kValidatingEntry = 144,
  kEnteringValue = 145,

  kThresholdRange = 146,
  kPurgeAgeRange = 147,
  kTimerIntervalRange = 148,

  // The welcome of the first run, line by line.
  kWelcome = 149,
  kWelcomeReviewSettings = 150,
  kWelcomeByOptions = 151,
  kWelcomeViewHelp = 152,

  kAlreadyLoaded = 153,
  kRebuildingFavorites = 154,  ///< the last phrase of an error report
  kPleaseWait = 155,
};

/// The text of a number, in English. A number without a text gives an empty one, as the classic resource did.
const std::string& ResourceString(StringId id);

}  // namespace dayvane
