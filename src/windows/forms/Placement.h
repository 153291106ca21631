// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "controls/Control.h"
#include "windows/widgets/Look.h"

namespace dayvane::widgets {

/// Keeps the children of a container where their controls say, but never past its edge, where their frames and
/// scroll bars would be cut off.
class Placement {
 public:
  Placement(HWND container, const SharedLook& look) : m_container(container), m_look(look) {}

  /// The window is a child of the container. The control must outlive the placement.
  void Add(controls::Control& control, HWND window);

  /// After the container was sized.
  void PlaceAll() const;

  void SetLook(const SharedLook& look) { m_look = look; }

 private:
  struct Child {
    const controls::Control& control;
    HWND window = nullptr;
    controls::Connection changed;
  };

  void Place(const controls::Control& control, HWND window) const;

  HWND m_container;
  SharedLook m_look;
  std::vector<Child> m_children;
};

}  // namespace dayvane::widgets
