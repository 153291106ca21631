// SPDX-License-Identifier: MIT
#include "settings/FOptions.h"

#include "app/ReportErrors.h"
#include "base/Error.h"
#include "base/Text.h"
#include "controls/Keys.h"

namespace dayvane {

namespace {

constexpr int kLeast = 1;
constexpr int kMostSeconds = 60;
constexpr std::size_t kTimerField = 2;
constexpr int kOptionsHelp = 11;  ///< help context of the dialog

struct Field {
  const char* caption;
  StringId rangeMessage;
  int help;  ///< help context of its label, box and arrows
};

constexpr std::array<Field, FOptions::kFields> kFieldTable{{
    {"&Favorites Threshold (1 or more days accessed):", kThresholdRange, 2},
    {"&Purge Age (1 or more days):", kPurgeAgeRange, 22},
    {"&Timer Interval (1 to 60 seconds):", kTimerIntervalRange, 6},
}};

/// Makes a form the one whose pointer a wait cursor changes, for as long as it lives.
class ActiveForm {
 public:
  ActiveForm(Application& application, controls::Form& form)
      : m_application(application), m_before(application.activeForm) {
    application.activeForm = &form;
  }
  ActiveForm(const ActiveForm&) = delete;
  ActiveForm& operator=(const ActiveForm&) = delete;
  ~ActiveForm() { m_application.activeForm = m_before; }

 private:
  Application& m_application;
  controls::Form* m_before;
};

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

void FOptions::ConnectControls() {
  for (std::size_t i = 0; i < kFields; ++i) {
    txtOptions[i].GotFocus.Connect([this, i] { txtOptions_GotFocus(i); });
    txtOptions[i].KeyPress.Connect([this, i](int& character) { txtOptions_KeyPress(i, character); });
    udOptions[i].UpClick.Connect([this, i] { udOptions_UpClick(i); });
    udOptions[i].DownClick.Connect([this, i] { udOptions_DownClick(i); });
  }
  for (std::size_t i = 0; i < cmdOptions.size(); ++i) cmdOptions[i].Click.Connect([this, i] { cmdOptions_Click(i); });
  form.QueryUnload.Connect([this](bool& cancel, controls::UnloadMode mode) { Form_QueryUnload(cancel, mode); });
  form.KeyUp.Connect([this](int keyCode, int) {
    if (keyCode == controls::kKeyF1) DisplayHelp();
  });
}

std::int32_t FOptions::Number(std::size_t index) const {
  const std::string& text = txtOptions[index].Text();
  const auto number = text::ToInt32(text);
  if (!number) throw Error(kTypeMismatch, "Type mismatch: \"" + text + "\" is no whole number");
  return *number;
}

void FOptions::SetNumber(std::size_t index, std::int32_t number) {
  txtOptions[index].SetText(std::to_string(number));
}

bool FOptions::GetValues() {
  m_accepted = false;
  const ActiveForm active(m_application, form);
  m_application.desktop.windowing.ShowModal(form);
  return m_accepted;
}

void FOptions::Beep() const {
  m_application.desktop.windowing.Beep();
}

void FOptions::TellRange(std::size_t index) {
  Beep();
  m_application.desktop.windowing.ShowMessage({ResourceString(kFieldTable[index].rangeMessage),
                                               m_application.info.title, platform::MessageButtons::Ok,
                                               platform::MessageIcon::Information});
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
    m_application.desktop.help.ShowHelp(m_application.helpFile, platform::kHelpContext, kOptionsHelp);
  });
}

}  // namespace dayvane
