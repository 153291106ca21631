// SPDX-License-Identifier: MIT
#include "settings/FOptions.h"

#include "app/ReportErrors.h"
#include "base/ScopedValue.h"
#include "controls/Keys.h"
#include "resources/MHelpConstants.h"
#include "settings/SettingsStore.h"

namespace dayvane {

namespace {

constexpr int kLeast = 1;
constexpr int kMostSeconds = 60;
constexpr std::size_t kTimerField = 2;

struct OptionField {
  const char* caption;
  StringId rangeMessage;
  HelpContextId help;  ///< of its label, box and arrows
};

constexpr std::array<OptionField, FOptions::kFields> kFieldTable{{
    {"&Favorites Threshold (1 or more days accessed):", kThresholdRange, kHelpFavoritesThreshold},
    {"&Purge Age (1 or more days):", kPurgeAgeRange, kHelpPurgeAge},
    {"&Timer Interval (1 to 60 seconds):", kTimerIntervalRange, kHelpTimerInterval},
}};

}  // namespace

FOptions::FOptions(Application& application) : m_application(application) {
  Form_Load();
  ConnectControls();
}

FOptions::~FOptions() {
  form.RequestUnload(controls::UnloadMode::Code);
}

void FOptions::Form_Load() {
  form.SetCaption(m_application.info.title + " Options");
  for (std::size_t i = 0; i < kFields; ++i) {
    lblOptions[i].SetCaption(kFieldTable[i].caption);
    for (controls::Control* control :
         {static_cast<controls::Control*>(&lblOptions[i]), static_cast<controls::Control*>(&txtOptions[i]),
          static_cast<controls::Control*>(&udOptions[i])})
      control->SetWhatsThisHelpID(kFieldTable[i].help);
  }
  cmdOptions[kOk].SetCaption("OK");
  cmdOptions[kCancel].SetCaption("Cancel");
  cmdOptions[kHelp].SetCaption("&Help");
}

void FOptions::Form_QueryUnload(bool& cancel, controls::UnloadMode mode) {
  // Closing the dialog cancels it; its owner destroys it.
  if (mode == controls::UnloadMode::Code) return;
  cancel = true;
  cmdOptions[kCancel].Press();
}

void FOptions::Form_KeyUp(int keyCode) {
  if (keyCode == controls::kKeyF1) DisplayHelp();
}

void FOptions::ConnectControls() {
  for (std::size_t i = 0; i < kFields; ++i) {
    txtOptions[i].GotFocus.Connect([this, i] { txtOptions_GotFocus(i); });
    txtOptions[i].KeyPress.Connect([this, i](int& character) { txtOptions_KeyPress(i, character); });
    udOptions[i].UpClick.Connect([this, i] { udOptions_UpClick(i); });
    udOptions[i].DownClick.Connect([this, i] { udOptions_DownClick(i); });
  }
  for (std::size_t i = 0; i < cmdOptions.size(); ++i) cmdOptions[i].Click.Connect([this, i] { cmdOptions_Click(i); });
  form.QueryUnload.Connect([this](bool& cancel, controls::UnloadMode mode) { Form_QueryUnload(cancel, mode); });
  form.KeyUp.Connect([this](int keyCode, int) { Form_KeyUp(keyCode); });
}

std::int32_t FOptions::Number(std::size_t index) const {
  return settings::WholeNumber(txtOptions[index].Text());
}

bool FOptions::GetValues() {
  m_accepted = false;
  const ScopedValue active(m_application.activeForm, &form);
  m_application.desktop.windowing.ShowModal(form);
  return m_accepted;
}

void FOptions::TellRange(std::size_t index) {
  Beep();
  m_application.Tell(ResourceString(kFieldTable[index].rangeMessage));
}

bool FOptions::Validate() {
  for (std::size_t i = 0; i < kFields; ++i) {
    const std::int32_t number = Number(i);
    if (number >= kLeast && (i != kTimerField || number <= kMostSeconds)) continue;
    TellRange(i);
    txtOptions[i].SetFocus();
    return false;
  }
  return true;
}

void FOptions::cmdOptions_Click(std::size_t index) {
  ReportErrors(m_application, kValidatingEntry, kName, "cmdOptions_Click", [&] {
    if (index == kHelp) return DisplayHelp();
    if (index == kOk && !Validate()) return;
    m_accepted = index == kOk;
    form.SetVisible(false);
  });
}

void FOptions::txtOptions_GotFocus(std::size_t index) {
  ReportErrors(m_application, kSelectingText, kName, "txtOptions_GotFocus",
               [&] { txtOptions[index].SetSelection(0, static_cast<int>(txtOptions[index].Text().size())); });
}

void FOptions::txtOptions_KeyPress(std::size_t index, int& character) {
  ReportErrors(m_application, kEnteringValue, kName, "txtOptions_KeyPress", [&] {
    if (ShellServices::IsNumericKey(character)) return;
    character = 0;
    TellRange(index);
  });
}

void FOptions::udOptions_UpClick(std::size_t index) {
  ReportErrors(m_application, kEnteringValue, kName, "udOptions_UpClick", [&] {
    const std::int32_t number = Number(index);
    const bool atMost = number >= (index == kTimerField ? kMostSeconds : INT32_MAX);
    if (atMost) return Beep();
    SetNumber(index, number + 1);
  });
}

void FOptions::udOptions_DownClick(std::size_t index) {
  ReportErrors(m_application, kEnteringValue, kName, "udOptions_DownClick", [&] {
    const std::int32_t number = Number(index);
    if (number <= kLeast) return Beep();
    SetNumber(index, number - 1);
  });
}

void FOptions::DisplayHelp() {
  ReportErrors(m_application, kDisplayingHelp, kName, "DisplayHelp", [this] {
    m_application.desktop.help.ShowHelp(m_application.helpFile, platform::kHelpContext, kHelpOptions);
  });
}

}  // namespace dayvane
