// The window's life: shown and hidden, activated, resized, closed.

#include "app/ReportErrors.h"
#include "shell/FMain.h"

namespace dayvane {

void FMain::Form_Activate() {
  if (m_activatedOnce) return;
  m_activatedOnce = true;
  FindLatestDay();
}

void FMain::Form_Resize() {
  ReportErrors(m_application, kResizing, kName, "Form_Resize", [this] {
    if (form.State() == controls::WindowState::Minimised) {
      SetVisible(false);
      form.SetState(controls::WindowState::Normal);
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

void FMain::Form_QueryUnload(bool& cancel, controls::UnloadMode mode) {
  const bool asked = mode == controls::UnloadMode::SystemSession || mode == controls::UnloadMode::TaskManager;
  if (asked || m_exiting) return;
  SetVisible(false);
  cancel = true;
}

void FMain::Form_Unload() {
  ReportErrors(m_application, kSavingSettings, kName, "Form_Unload", [this] {
    Assert(m_oDaily != nullptr, ".Form_Unload: Daily object is nothing");
    Assert(m_oFavorites != nullptr, ".Form_Unload: Favorites object is nothing");
    tmrMain.SetEnabled(false);
    SaveWindow();
    m_oFavorites->Save();
  });
}

void FMain::SaveWindow() {
  m_oDaily->SaveSettings();
  m_oFavorites->SaveSettings();
}

void FMain::SetVisible(bool visible) {
  form.SetVisible(visible);
}

void FMain::SetActiveView(int view) {
  m_activeView = static_cast<std::int16_t>(view);
  picDaily.SetVisible(view == kDailyView);
  picFavorites.SetVisible(view == kFavoritesView);
}

void FMain::SetExploreOpen(bool) {}

}  // namespace dayvane
