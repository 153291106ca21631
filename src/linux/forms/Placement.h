// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "controls/Control.h"

class QWidget;

namespace dayvane::widgets {

/// Keeps the children of a container where their controls say, but never past its edge, where their frames and
/// scroll bars would be cut off.
class Placement {
 public:
  explicit Placement(QWidget& container) : m_container(container) {}

  /// The widget becomes a child of the container. The control must outlive the placement.
  void Add(controls::Control& control, QWidget& widget);

  /// After the container was sized.
  void PlaceAll() const {
    for (const Child& child : m_children) Place(child.control, child.widget);
  }

 private:
  struct Child {
    const controls::Control& control;
    QWidget& widget;
    controls::Connection changed;
  };

  void Place(const controls::Control& control, QWidget& widget) const;

  QWidget& m_container;
  std::vector<Child> m_children;
};

}  // namespace dayvane::widgets
