// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

#include "platform/Windowing.h"

namespace dayvane::widgets {

/// A message or question of the program: with its own pictures, plain buttons, and a path never broken over two lines.
class MessageBox : public QMessageBox {
 public:
  MessageBox(const platform::Message& message, QWidget* owner);

  /// Opens it below a window instead of over it, where the screen has room.
  void PlaceBelow(const QWidget& window);

 private:
  void KeepPathsWhole();
};

}  // namespace dayvane::widgets
