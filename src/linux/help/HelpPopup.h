// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "help/HelpFile.h"

namespace dayvane::help {

/// A small window that explains one control, where the user asked. It goes at the next click or key.
class HelpPopup : public QFrame {
  Q_OBJECT

 public:
  /// The file must live as long as the window.
  HelpPopup(const HelpFile& file, const Topic& topic, QWidget* parent);

  /// Opens at a point of the screen, moved so that all of it can be read.
  void OpenAt(const QPoint& point);

 Q_SIGNALS:
  void TopicChosen(const QString& name);  ///< a link in the text

 protected:
  void keyPressEvent(QKeyEvent* /*event*/) override { close(); }
  void mousePressEvent(QMouseEvent* /*event*/) override { close(); }

 private:
  QVBoxLayout m_layout{this};
  QLabel m_text;
};

}  // namespace dayvane::help
