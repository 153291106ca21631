// SPDX-License-Identifier: MIT

// The window's life: shown and hidden, activated, resized, closed; its views and its settings.

#include "app/ReportErrors.h"
#include "base/Text.h"
#include "settings/COptions.h"
#include "settings/SettingsStore.h"
#include "shell/FMain.h"

namespace dayvane {

namespace {

using controls::ListStyle;
using controls::WindowState;

constexpr int kStyles = 4;

enum WindowSetting : std::size_t { kVisible, kWindowState, kLeft, kTop, kWidth, kHeight };
enum ViewSetting : std::size_t { kData, kListViews };

std::vector<settings::NamedText> WindowDefaults(const controls::Form& form) {
  return {{"Visible", "True"},
          {"Window State", std::to_string(static_cast<int>(form.State()))},
          {"Left", text::NumberText(form.Left())},
          {"Top", text::NumberText(form.Top())},
          {"Width", text::NumberText(form.Width())},
          {"Height", text::NumberText(form.Height())}};
}

const std::vector<settings::NamedText>& ViewDefaults() {
  static const std::vector<settings::NamedText> defaults{{"Data", "0"}, {"ListViews", "3"}};
  return defaults;
}

}  // namespace

void FMain::Form_Activate() {
  if (m_activatedOnce) return;
  m_activatedOnce = true;
  FindLatestDay();
}

void FMain::Form_Resize() {
  ReportErrors(m_application, kResizing, kName, "Form_Resize", [this] {
    if (form.State() == WindowState::Minimised) {
      SetVisible(false);
      form.SetState(WindowState::Normal);
      return;
    }
    constexpr double kRightMargin = 30;
    constexpr double kBottomMargin = 15;
    const auto size = [](double room) { return static_cast<int>(ShellServices::LargerOf(room, 0.0)); };
    const int width = size(form.ScaleWidth() - kRightMargin);
    const auto height = [&](const controls::PictureBox& pane) {
      return size(form.ScaleHeight() - sbrMain.Height() - pane.Top() - kBottomMargin);
    };
    if (m_oDaily) m_oDaily->SetSize(width, height(picDaily));
    if (m_oFavorites) m_oFavorites->SetSize(width, height(picFavorites));
  });
}

void FMain::picMain_Resize(std::size_t index) {
  if (index != kToolbarStrip) return;
  ReportErrors(m_application, kResizing, kName, "picMain_Resize", [this] {
    for (controls::Line& line : linToolbar) line.SetX2(picMain[kToolbarStrip].Width());
  });
}

void FMain::Form_QueryUnload(bool& cancel, controls::UnloadMode mode) {
  const bool mustGo = mode == controls::UnloadMode::SystemSession || mode == controls::UnloadMode::TaskManager;
  if (mustGo || m_exiting) return;
  ReportErrors(m_application, kExitingOrHiding, kName, "Form_QueryUnload", [this] { SetVisible(false); });
  cancel = true;
}

void FMain::Form_Unload() {
  ReportErrors(m_application, kSavingSettings, kName, "Form_Unload", [this] {
    Assert(m_oDaily != nullptr, ".Form_Unload: Daily object is nothing");
    Assert(m_oFavorites != nullptr, ".Form_Unload: Favorites object is nothing");
    tmrMain.SetEnabled(false);
    // A session that ends waits for the disk once, and not for every value.
    platform::WritesTogether writes(m_application.desktop.registry);
    if (m_isRestored) {
      SaveWindow();
      SaveViews();
      m_oDaily->SaveSettings();
    }
    m_oFavorites->Save();
    if (m_isRestored) m_oFavorites->SaveSettings();
    writes.Store();
  });
  m_oCalendar.reset();
  m_oDaily.reset();
  m_oFavorites.reset();
}

void FMain::SaveWindow() {
  const auto key = settings::OpenSubtree(m_application.desktop.registry, "Window");
  key->SetValue("Visible", settings::FlagText(form.Visible()));
  key->SetValue("Window State", std::to_string(static_cast<int>(form.State())));
  if (form.State() != WindowState::Normal) return;
  key->SetValue("Left", text::NumberText(form.Left()));
  key->SetValue("Top", text::NumberText(form.Top()));
  key->SetValue("Width", text::NumberText(form.Width()));
  key->SetValue("Height", text::NumberText(form.Height()));
}

void FMain::SaveViews() {
  const auto key = settings::OpenSubtree(m_application.desktop.registry, "View");
  key->SetValue("Data", std::to_string(m_activeView));
  key->SetValue("ListViews", std::to_string(static_cast<int>(m_oDaily->View())));
}

void FMain::RestoreWindow() {
  const settings::Subtree window(m_application.desktop.registry, "Window", WindowDefaults(form));
  m_visibleAtStart = window.Flag(kVisible);
  form.Move(window.Number(kLeft), window.Number(kTop), window.Number(kWidth), window.Number(kHeight));
  if (window.Number(kWindowState) == static_cast<int>(WindowState::Maximised)) form.SetState(WindowState::Maximised);
}

void FMain::RestoreViews() {
  const settings::Subtree view(m_application.desktop.registry, "View", ViewDefaults());
  m_oDaily->RestoreSettings();
  m_oFavorites->RestoreSettings();
  m_oFavorites->SortAgain();
  SetActiveView(view.Number(kData));
  SetListView(view.Number(kListViews));
}

void FMain::SetVisible(bool visible) {
  form.SetVisible(visible);
  mnuSysTrayPopup[kTrayShow].SetVisible(!visible);
  mnuSysTrayPopup[kTrayHide].SetVisible(visible);
}

void FMain::SetActive(bool active) {
  m_isSuspended = !active;
  if (active) {
    PollRecentFolder();
  } else {
    tmrMain.SetEnabled(false);
    tryMain.SetPicture(kSuspendedIcon);
  }
  // A poll that failed has left the timer off, too, and Resume is how to go on.
  ShowSuspendOrResume(tmrMain.Enabled());
}

void FMain::ShowSuspendOrResume(bool active) const {
  mnuFilePopup[kFileSuspend].SetVisible(active);
  mnuFilePopup[kFileResume].SetVisible(!active);
  mnuSysTrayPopup[kTraySuspend].SetVisible(active);
  mnuSysTrayPopup[kTrayResume].SetVisible(!active);
}

void FMain::SetActiveView(int view) {
  ReportErrors(m_application, kSettingActiveView, kName, "SetActiveView", [&] {
    Assert(m_oDaily != nullptr, ".SetActiveView: Daily object is nothing");
    Assert(m_oFavorites != nullptr, ".SetActiveView: Favorites object is nothing");
    m_activeView = static_cast<std::int16_t>(view);
    if (view == kDailyView || view == kFavoritesView) {
      const bool daily = view == kDailyView;
      form.SetCaption(m_application.info.title + " - " + ResourceString(daily ? kDaily : kFavorites));
      m_oDaily->SetVisible(daily);
      m_oFavorites->SetVisible(!daily);
      FollowSelection();
    }
    mnuViewPopup[kViewDaily].SetChecked(view == kDailyView);
    mnuViewPopup[kViewFavorites].SetChecked(view == kFavoritesView);
    sftToolbar[kDailyButton].SetEnabled(view != kDailyView);
    sftToolbar[kFavoritesButton].SetEnabled(view != kFavoritesView);
  });
}

void FMain::SetListView(int style) {
  ReportErrors(m_application, kSettingDocumentView, kName, "SetListView", [&] {
    m_oDaily->SetView(static_cast<ListStyle>(style));
    m_oFavorites->SetView(static_cast<ListStyle>(style));
    for (int i = 0; i < kStyles; ++i) {
      mnuViewPopup[kViewLargeIcons + i].SetChecked(i == style);
      mnuArrangeViewPopup[i].SetChecked(i == style);
      sftToolbar[kLargeIconsButton + static_cast<std::size_t>(i)].SetEnabled(i != style);
    }
  });
}

void FMain::SetExploreOpen(bool enabled) {
  for (const int item : {kToolsExplore, kToolsOpenFolder}) mnuToolsPopup[item].SetEnabled(enabled);
  for (const auto button : {kExploreButton, kOpenFolderButton}) sftToolbar[button].SetEnabled(enabled);
}

void FMain::FollowSelection() {
  if (const controls::ListView* list = ActiveList()) SetExploreOpen(list->SelectedItem() != nullptr);
}

const controls::ListView* FMain::ActiveList() const {
  return m_activeView == kDailyView ? &lvwDaily : m_activeView == kFavoritesView ? &lvwFavorites : nullptr;
}

void FMain::SetOptions() {
  ReportErrors(m_application, kSettingOptions, kName, "SetOptions", [this] {
    const std::int32_t threshold = m_favoritesThreshold;
    const std::int32_t interval = m_timerInterval;
    COptions options(m_application);
    options.DialogLoaded.Connect([this](FOptions& dialog) { OptionsLoaded.Raise(dialog); });
    if (!options.ChangeValues()) return;
    m_favoritesThreshold = options.FavoritesThreshold();
    m_purgeAge = options.PurgeAge();
    m_timerInterval = options.TimerInterval();
    if (m_favoritesThreshold != threshold) {
      RefreshFavorites();
      RefreshStatusBar();
    }
    if (m_timerInterval != interval) ChangeTimerInterval();
  });
}

void FMain::ChangeTimerInterval() {
  SetTimerInterval();
  if (m_isSuspended) return;
  // A failed poll had stopped it.
  tmrMain.SetEnabled(true);
  ShowSuspendOrResume(true);
}

void FMain::ArrangeIcons(int index) {
  ReportErrors(m_application, kArrangingIcons, kName, "ArrangeIcons", [&] {
    int order = index;
    if (index == kArrangeAuto) {
      const bool checked = mnuViewArrangePopup[kArrangeAuto].Checked();
      order = checked ? 2 : 3;
      mnuViewArrangePopup[kArrangeAuto].SetChecked(!checked);
      mnuArrangeIconsPopup[kArrangeAuto].SetChecked(!checked);
    } else if (index != kArrangeByName && index != kArrangeByType) {
      return;
    }
    m_oDaily->ArrangeIcons(order);
    m_oFavorites->ArrangeIcons(order);
  });
}

}  // namespace dayvane
