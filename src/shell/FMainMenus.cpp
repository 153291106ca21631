// SPDX-License-Identifier: MIT

// What the menus, the toolbar and the tray do.

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"
#include "controls/Keys.h"
#include "controls/ListView.h"
#include "resources/MHelpConstants.h"
#include "shell/FMain.h"

namespace dayvane {

void FMain::mnuFilePopup_Click(int index) {
  ReportErrors(m_application, kHidingSuspendingResuming, kName, "mnuFilePopup_Click", [&] {
    switch (index) {
      case kFileSuspend:
        return SetActive(false);
      case kFileResume:
        SetActive(true);
        return RefreshStatusBar();
      // Not by SetVisible: this way the tray menu's Show and Hide are deliberately not swapped.
      case kFileHide:
        return form.SetVisible(false);
      case kFileExit:
        return Exit();
      default:
        return;
    }
  });
}

void FMain::mnuViewPopup_Click(int index) {
  IgnoreErrors([&] {
    switch (index) {
      case kViewDaily:
        SetActiveView(kDailyView);
        return RefreshStatusBar();
      case kViewFavorites:
        SetActiveView(kFavoritesView);
        return RefreshStatusBar();
      case kViewLargeIcons:
      case kViewSmallIcons:
      case kViewList:
      case kViewDetails:
        return SetListView(index - kViewLargeIcons);
      case kViewOptions:
        return SetOptions();
      default:
        return;
    }
  });
}

void FMain::mnuToolsPopup_Click(int index) {
  const StringId phrase = index == kToolsRebuildFavorites ? kRebuildingFavorites : kExploringFolder;
  ReportErrors(m_application, phrase, kName, "mnuToolsPopup_Click", [&] {
    Assert(m_oDaily != nullptr, ".mnuToolsPopup_Click: Daily object is nothing");
    Assert(m_oFavorites != nullptr, ".mnuToolsPopup_Click: Favorites object is nothing");
    if (index == kToolsFind) return Find();
    if (index != kToolsExplore && index != kToolsOpenFolder && index != kToolsRebuildFavorites) return;
    auto waitCursor = ShowWait();
    if (index == kToolsExplore) return m_oDaily->Explore();
    if (index == kToolsOpenFolder) return m_oDaily->OpenFolder();
    RebuildFavorites();
    RefreshStatusBar(std::move(waitCursor));
  });
}

void FMain::mnuHelpPopup_Click(int index) {
  IgnoreErrors([&] {
    switch (index) {
      case kHelpTopics:
        return DisplayHelp(kHelpContents);
      case kHelpKorvathOnline:
        return DisplayKorvathOnline();
      case kHelpAbout:
        return DisplayAboutBox();
      default:
        return;
    }
  });
}

void FMain::mnuTreeViewPopup_Click(int index) {
  if (index != kTreeViewPurge) return;
  ReportErrors(m_application, kPurgingDay, kName, "mnuTreeViewPopup_Click", [&] {
    Assert(m_oDaily != nullptr, ".mnuTreeViewPopup_Click: Daily object is nothing");
    auto waitCursor = ShowWait();
    PurgeDay(m_oDaily->SelectedDay());
    RefreshStatusBar(std::move(waitCursor));
  });
}

void FMain::mnuSysTrayPopup_Click(int index) {
  ReportErrors(m_application, kHidingShowingSuspendingResuming, kName, "mnuSysTrayPopup_Click", [&] {
    switch (index) {
      case kTrayShow:
        return SetVisible(true);
      case kTrayHide:
        return SetVisible(false);
      case kTraySuspend:
        return SetActive(false);
      case kTrayResume:
        SetActive(true);
        return RefreshStatusBar();
      case kTrayAbout:
        return DisplayAboutBox();
      case kTrayExit:
        return Exit();
      default:
        return;
    }
  });
}

void FMain::mnuListViewPopup_Click(int index) {
  if (index != kListViewOpen) return;
  ReportErrors(m_application, kOpeningDocument, kName, "mnuListViewPopup_Click", [&] {
    Assert(m_oDaily != nullptr, ".mnuListViewPopup_Click: Daily object is nothing");
    auto waitCursor = ShowWait();
    OpenDocument(m_oDaily->SelectedDocument());
    RefreshStatusBar(std::move(waitCursor));
  });
}

void FMain::sftToolbar_Click(std::size_t index) {
  IgnoreErrors([&] {
    switch (index) {
      case kDailyButton:
        SetActiveView(kDailyView);
        return RefreshStatusBar();
      case kFavoritesButton:
        SetActiveView(kFavoritesView);
        return RefreshStatusBar();
      case kExploreButton:
        return Explore();
      case kOpenFolderButton:
        return OpenFolder();
      case kFindButton:
        return Find();
      case kLargeIconsButton:
      case kSmallIconsButton:
      case kListButton:
      case kDetailsButton:
        return SetListView(static_cast<int>(index - kLargeIconsButton));
      case kHelpButton:
        return DisplayHelp(kHelpMainWindow);
      case kWhatsThisButton:
        return form.WhatsThisMode();
      default:
        return;
    }
  });
}

void FMain::tryMain_MouseUp(int button) {
  ReportErrors(m_application, kHidingShowingSuspendingResuming, kName, "tryMain_MouseUp", [&] {
    auto& windowing = m_application.desktop.windowing;
    windowing.SetForegroundWindow(form);
    if (button == controls::kLeftButton) SetVisible(!form.Visible());
    if (button == controls::kRightButton)
      windowing.PopupMenuAtMouse(form, mnuSysTrayPopup, form.Visible() ? kTrayHide : kTrayShow);
    // Without a message after it the menu would stay open when the user clicks elsewhere.
    windowing.PostMessage(form, platform::kWmUser);
  });
}

void FMain::Exit() {
  m_exiting = true;
  m_application.desktop.windowing.PostMessage(form, platform::kWmClose);
}

void FMain::Find() {
  m_application.Tell("Display find dialog box here.");
}

void FMain::DisplayHelp(int context) {
  ReportErrors(m_application, kDisplayingHelp, kName, "DisplayHelp", [&] {
    const int command = context != 0 ? platform::kHelpContext : platform::kHelpFinder;
    m_application.desktop.help.ShowHelp(m_application.helpFile, command, context);
  });
}

void FMain::DisplayKorvathOnline() {
  ReportErrors(m_application, kLoadingWebPage, kName, "DisplayKorvathOnline", [this] {
    constexpr int kNormalWindow = 1;
    const ShellServices& shell = m_application.shellServices;
    shell.Open(m_application.info.homePage, shell.DefaultWorkingFolder(), kNormalWindow);
  });
}

void FMain::DisplayAboutBox() {
  ReportErrors(m_application, kDisplayingAboutBox, kName, "DisplayAboutBox",
               [this] { m_application.desktop.windowing.ShowAbout(m_application.info.About()); });
}

}  // namespace dayvane
