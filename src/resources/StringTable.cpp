// SPDX-License-Identifier: MIT
#include "resources/StringTable.h"

#include <array>
#include <cstddef>

namespace dayvane {

namespace {

constexpr int kFirst = kLegalWarning;
constexpr int kLast = kPleaseWait;
using Table = std::array<std::string, kLast - kFirst + 1>;

struct Entry {
  StringId id;
  const char* text;
};

// "Threshhold", "Document of … are" and the capital of "Exploring" are part of what users and their scripts know.
// Trailing blanks matter: these texts are joined with what follows them.
constexpr Entry kEntries[] = {
    {kLegalWarning,
     "Dayvane is free software under the MIT License: you may use, copy, change and share it. "
     "It comes without warranty of any kind."},
    {kPurgeThereAreShortcuts, "There are shortcuts to programs and documents"},
    {kPurgeBefore, "that you accessed prior to "},
    {kPurgeDoYouWant, "Do you want to remove these shortcuts from Dayvane?"},
    {kPurgeDocumentsStay, "(The programs and documents will NOT be deleted.)"},
    {kVersionPrefix, "Version "},
    {kOperatingSystemError, "An operating system error occurred."},
    {kTheDocument, "The document "},
    {kTheDocumentWasNotFound, "was not found. Remove this link?"},
    {kThePath, "The path "},
    {kThePathWasNotFound, "was not found. Remove this link?"},
    {kDocumentsOfThisType, "Document of this file type"},
    {kAreNotAssociated, "are no longer associated with a program."},
    {kDaily, "Daily"},
    {kFavorites, "Favorites"},
    {kErrorPrefix, "An error occurred "},
    {kStartingTheProgram, "starting the program."},
    {kFindingLatestDay, "finding the latest day with documents."},
    {kExitingOrHiding, "exiting or hiding the main window."},
    {kResizing, "resizing the main window."},
    {kSavingSettings, "saving the current settings."},
    {kSelectingDate, "selecting a date."},
    {kOpeningDocument, "opening a document."},
    {kProcessingSelection, "processing a document selection."},
    {kDisplayingContextMenu, "displaying a context menu."},
    {kArrangingIcons, "arranging icons."},
    {kSettingDocumentView, "setting the document view."},
    {kHidingSuspendingResuming, "hiding, suspending, or resuming."},
    {kDisplayingHelp, "displaying help."},
    {kLoadingWebPage, "loading a Web page."},
    {kDisplayingAboutBox, "displaying the About Box."},
    {kHidingShowingSuspendingResuming, "hiding, showing, suspending, or resuming."},
    {kExploringFolder, "Exploring the document's folder."},
    {kPurgingDay, "purging a day."},
    {kSettingActiveView, "setting the active view."},
    {kSettingOptions, "setting options."},
    {kOpeningFolder, "opening the document's folder."},
    {kCheckingForDocuments, "checking for new documents."},
    {kChangingSortOrder, "changing the document sort order."},
    {kSelectingText, "selecting text."},
    {kValidatingEntry, "validating an entry."},
    {kEnteringValue, "entering a value."},
    {kThresholdRange, "The Favorites Threshhold must be 1 or more."},
    {kPurgeAgeRange, "The Purge age must be 1 or more."},
    {kTimerIntervalRange, "The Timer Interval must be between 1 and 60."},
    {kWelcome, "Welcome to Dayvane."},
    {kWelcomeReviewSettings, "We suggest that you review the default settings"},
    {kWelcomeByOptions, "by selecting the View|Options menu choice."},
    {kWelcomeViewHelp, "Would you like to view the help file?"},
    {kAlreadyLoaded, "Dayvane is already loaded."},
    {kRebuildingFavorites, "rebuilding the Favorites list."},
    {kPleaseWait, "Please wait..."},
};

}  // namespace

const std::string& ResourceString(StringId id) {
  static const Table table = [] {
    Table filled;
    for (const Entry& entry : kEntries) filled[static_cast<std::size_t>(entry.id - kFirst)] = entry.text;
    return filled;
  }();
  static const std::string none;
  if (id < kFirst || id > kLast) return none;
  return table[static_cast<std::size_t>(id - kFirst)];
}

}  // namespace dayvane
