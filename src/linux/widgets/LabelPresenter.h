// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include "controls/SimpleControls.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// A caption as plain words, without its access key and the colon at its end: what a field is called for screen
/// readers.
QString SpokenCaption(const std::string& caption);

/// Shows a label: plain text, with an access key where it has a buddy.
class LabelPresenter : public QLabel {
 public:
  explicit LabelPresenter(controls::Label& control, QWidget* parent = nullptr);

 private:
  ControlLink m_link;
};

}  // namespace dayvane::widgets
