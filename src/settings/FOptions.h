// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "app/Application.h"
#include "controls/Form.h"
#include "controls/SimpleControls.h"
#include "controls/TextControls.h"

namespace dayvane {

/// The modal dialog in which the user edits the three options. It owns their range checks; nothing else in the program
/// checks them. Control arrays are indexed 0 Favorites Threshold, 1 Purge Age, 2 Timer Interval.
class FOptions {
 public:
  static constexpr const char* kName = "FOptions";
  static constexpr std::size_t kFields = 3;

  enum Command : std::size_t { kOk = 0, kCancel = 1, kHelp = 2 };

  explicit FOptions(Application& application);
  ~FOptions();  ///< unloads the dialog

  /// Reading converts the field's text and fails with kTypeMismatch when it is not a number.
  std::int32_t FavoritesThreshold() const { return Number(0); }
  std::int32_t PurgeAge() const { return Number(1); }
  std::int32_t TimerInterval() const { return Number(2); }
  void SetFavoritesThreshold(std::int32_t days) { SetNumber(0, days); }
  void SetPurgeAge(std::int32_t days) { SetNumber(1, days); }
  void SetTimerInterval(std::int32_t seconds) { SetNumber(2, seconds); }

  /// Shows the dialog and returns, once it is hidden again, whether the user accepted.
  bool GetValues();

  /// Whether all fields are in range; the first that is not is reported and gets the focus.
  bool Validate();

  controls::Form form;
  std::array<controls::Label, kFields> lblOptions;
  std::array<controls::TextBox, kFields> txtOptions;
  std::array<controls::UpDown, kFields> udOptions;
  std::array<controls::Button, 3> cmdOptions;

 private:
  void Form_Load();
  void Form_QueryUnload(bool& cancel, controls::UnloadMode mode);
  void Form_KeyUp(int keyCode);
  void ConnectControls();
  void cmdOptions_Click(std::size_t index);
  void txtOptions_GotFocus(std::size_t index);
  void txtOptions_KeyPress(std::size_t index, int& character);
  void udOptions_UpClick(std::size_t index);
  void udOptions_DownClick(std::size_t index);
  void DisplayHelp();

  std::int32_t Number(std::size_t index) const;
  void SetNumber(std::size_t index, std::int32_t number) { txtOptions[index].SetText(std::to_string(number)); }
  void Beep() const { m_application.desktop.windowing.Beep(); }
  void TellRange(std::size_t index);

  Application& m_application;
  bool m_accepted = false;
};

}  // namespace dayvane
