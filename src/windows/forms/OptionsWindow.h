// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "windows/forms/DialogWindow.h"
#include "windows/widgets/LabelPresenter.h"
#include "windows/widgets/NumberFieldPresenter.h"

namespace dayvane {
class FOptions;
}

namespace dayvane::widgets {

/// The options dialog: a field with its label per option, the buttons below, and What's This in its caption. FOptions
/// must outlive it.
class OptionsWindow : public DialogWindow {
 public:
  /// `owner` may be nullptr.
  OptionsWindow(FOptions& options, HWND owner);
  ~OptionsWindow() override { End(); }

 protected:
  void RelayLook() override;
  SIZE LayOut() override;

 private:
  LONG WidthOfLabels() const;
  LONG PlaceFields(LONG margin, LONG labels) const;
  LONG PlaceButtons(LONG right, LONG top) const;

  // In the order in which Tab goes, and an access key to the field after its label.
  std::vector<std::unique_ptr<LabelPresenter>> m_labels;
  std::vector<std::unique_ptr<NumberFieldPresenter>> m_fields;
  std::vector<std::unique_ptr<ButtonPresenter>> m_buttons;
};

}  // namespace dayvane::widgets
