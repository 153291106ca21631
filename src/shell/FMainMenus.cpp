// What the menus, the toolbar and the tray do.

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"
#include "controls/ListView.h"
#include "shell/FMain.h"
#include "shell/MHelpConstants.h"

namespace dayvane {

namespace {

// Indexes that more than one procedure knows.
constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kTrayShow = 0;
constexpr int kTrayHide = 1;
constexpr int kFirstStyleItem = 4;  ///< of the View menu
constexpr int kFirstStyleButton = 6;

}  // namespace

void FMain::mnuFilePopup_Click(int index) {
  ReportErrors(m_application, kHidingSuspendingResuming, kName, "mnuFilePopup_Click", [&] {
    switch (index) {
      case 0:
        return SetActive(false);
      case 1:
        SetActive(true);
        return RefreshStatusBar();
      // The tray menu's Show and Hide are not swapped on this road; they are only by SetVisible.
      case 2:
        return form.SetVisible(false);
      case 4:
        return Exit();
      default:
        return;
    }
  });
}

void FMain::mnuViewPopup_Click(int index) {
  IgnoreErrors([&] {
    switch (index) {
      case 0:
        SetActiveView(kDailyView);
        return RefreshStatusBar();
      case 1:
        SetActiveView(kFavoritesView);
        return RefreshStatusBar();
      case 4:
      case 5:
      case 6:
      case 7:
        return SetListView(index - kFirstStyleItem);
      case 11:
        return SetOptions();
      default:
        return;
    }
  });
}

void FMain::mnuToolsPopup_Click(int index) {
  const StringId phrase = index == 5 ? kRebuildingFavorites : kExploringFolder;
  ReportErrors(m_application, phrase, kName, "mnuToolsPopup_Click", [&] {
    Assert(m_oDaily != nullptr, ".mnuToolsPopup_Click: Daily object is nothing");
    Assert(m_oFavorites != nullptr, ".mnuToolsPopup_Click: Favorites object is nothing");
    if (index == 0) return Find();
    if (index != 2 && index != 3 && index != 5) return;
    auto waitCursor = ShowWait();
    if (index == 2) return m_oDaily->Explore();
    if (index == 3) return m_oDaily->OpenFolder();
    m_oFavorites->RebuildFavorites();
    m_oFavorites->Save();
    RefreshFavorites();
    RefreshStatusBar(std::move(waitCursor));
  });
}

void FMain::mnuHelpPopup_Click(int index) {
  IgnoreErrors([&] {
    switch (index) {
      case 0:
        return DisplayHelp(kHelpContents);
      case 2:
        return DisplayKorvathOnline();
      case 4:
        return DisplayAboutBox();
      default:
        return;
    }
  });
}

void FMain::mnuTreeViewPopup_Click(int index) {
  if (index != 0) return;
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
      case 2:
        return SetActive(false);
      case 3:
        SetActive(true);
        return RefreshStatusBar();
      case 5:
        return DisplayAboutBox();
      case 7:
        return Exit();
      default:
        return;
    }
  });
}

void FMain::mnuListViewPopup_Click(int index) {
  if (index != 0) return;
  ReportErrors(m_application, kOpeningDocument, kName, "mnuListViewPopup_Click", [&] {
    Assert(m_oDaily != nullptr, ".mnuListViewPopup_Click: Daily object is nothing");
    auto waitCursor = ShowWait();
    OpenDocument(m_oDaily->SelectedDocument());
    RefreshStatusBar(std::move(waitCursor));
  });
}

void FMain::sftToolbar_Click(int index) {
  IgnoreErrors([&] {
    switch (index) {
      case 0:
        SetActiveView(kDailyView);
        return RefreshStatusBar();
      case 1:
        SetActiveView(kFavoritesView);
        return RefreshStatusBar();
      case 3:
        return Explore();
      case 4:
        return OpenFolder();
      case 5:
        return Find();
      case 6:
      case 7:
      case 8:
      case 9:
        return SetListView(index - kFirstStyleButton);
      case 10:
        return DisplayHelp(kHelpMainWindow);
      case 11:
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
    if (button == kLeftButton) SetVisible(!form.Visible());
    if (button == kRightButton)
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
  Tell("Display find dialog box here.");
}

void FMain::Tell(const std::string& text) {
  m_application.desktop.windowing.ShowMessage(
      {text, m_application.info.title, platform::MessageButtons::Ok, platform::MessageIcon::Information});
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
