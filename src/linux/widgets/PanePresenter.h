// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "controls/SimpleControls.h"
#include "linux/forms/Placement.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// Shows a pane with the widgets of the controls in it.
class PanePresenter : public QWidget {
 public:
  explicit PanePresenter(controls::PictureBox& control, QWidget* parent = nullptr)
      : QWidget(parent), m_link(control, *this, [] {}) {
    m_link.Show();
  }

  /// The widget becomes a child of the pane; the control must outlive it.
  void Add(controls::Control& control, QWidget& widget) { m_placement.Add(control, widget); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    m_placement.PlaceAll();
  }

 private:
  Placement m_placement{*this};
  ControlLink m_link;
};

}  // namespace dayvane::widgets
