// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QList>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWidget>
#include <memory>
#include <vector>

namespace dayvane::widgets {

/// A small window in the place of the tray icon, for desktops without a notification area: picture, tip, and the
/// commands as buttons. Closing it only minimises it, for it may be the only way to the program.
class TrayStandIn : public QWidget {
 public:
  explicit TrayStandIn(const QList<QAction*>& commands);

  void SetPicture(const QIcon& icon);
  void SetTip(const QString& tip);

  /// Shows it where it is in nobody's way. A window manager that minimises nothing leaves it on the screen.
  void ShowInTaskBar();

  bool eventFilter(QObject* object, QEvent* event) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddCommand(QAction& action);

  QVBoxLayout m_layout;
  QHBoxLayout m_head;
  QLabel m_picture;
  QLabel m_tip;
  std::vector<std::unique_ptr<QToolButton>> m_commands;
};

}  // namespace dayvane::widgets
