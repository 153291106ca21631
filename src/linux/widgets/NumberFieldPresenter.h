// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>
#include <string>

#include "controls/TextControls.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// Shows a text box and the pair of arrows beside it as one field. What may be typed and how far the arrows go is the
/// program's business.
class NumberFieldPresenter : public QAbstractSpinBox {
  Q_OBJECT
  Q_PROPERTY(int value READ Value WRITE SetValue)  // for screen readers, which set it as if typed

 public:
  NumberFieldPresenter(controls::TextBox& text, controls::UpDown& arrows, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  void stepBy(int steps) override;

 protected:
  bool event(QEvent* event) override;
  StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  int Value() const { return text().toInt(); }
  void SetValue(int value) { m_text.SetText(std::to_string(value)); }
  void ShowText();
  void ShowSelection();

  /// Whether the program takes every character of what was typed.
  bool Types(const QString& typed);

  controls::TextBox& m_text;
  controls::UpDown& m_arrows;
  ControlLink m_link;
  controls::Connection m_selectionWanted;
};

}  // namespace dayvane::widgets
