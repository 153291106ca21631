// SPDX-License-Identifier: MIT
#include "linux/forms/Placement.h"

#include <QWidget>

#include "linux/widgets/Lengths.h"

namespace dayvane::widgets {

void Placement::Add(controls::Control& control, QWidget& widget) {
  widget.setParent(&m_container);
  widget.setVisible(control.Visible());
  m_children.push_back(
      {control, widget, control.Changed.ConnectScoped([this, &control, &widget] { Place(control, widget); })});
  Place(control, widget);
}

void Placement::Place(const controls::Control& control, QWidget& widget) const {
  widget.setGeometry(PixelRect(control, m_container).intersected(m_container.rect()));
}

}  // namespace dayvane::widgets
