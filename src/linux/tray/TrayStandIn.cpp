// SPDX-License-Identifier: MIT
#include "linux/tray/TrayStandIn.h"

#include <QAction>
#include <QCloseEvent>
#include <QWindow>

namespace dayvane::widgets {

namespace {

constexpr int kPictureSize = 32;
constexpr int kLeastWidth = 220;  ///< room for the title beside a frame's buttons

}  // namespace

TrayStandIn::TrayStandIn(const QList<QAction*>& commands) : m_layout(this) {
  setAttribute(Qt::WA_ShowWithoutActivating);
  m_head.addWidget(&m_picture);
  m_head.addWidget(&m_tip, 1);
  m_tip.setTextFormat(Qt::PlainText);
  m_layout.addLayout(&m_head);
  m_layout.setSizeConstraint(QLayout::SetFixedSize);
  m_tip.setMinimumWidth(kLeastWidth);
  for (QAction* action : commands)
    if (!action->isSeparator()) AddCommand(*action);
}

void TrayStandIn::SetPicture(const QIcon& icon) {
  setWindowIcon(icon);
  m_picture.setPixmap(icon.pixmap({kPictureSize, kPictureSize}, devicePixelRatioF()));
}

void TrayStandIn::SetTip(const QString& tip) {
  setWindowTitle(tip);
  m_tip.setText(tip);
}

void TrayStandIn::ShowInTaskBar() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  // A window that asks to be minimised before the window manager has put it on the screen is not.
  winId();
  windowHandle()->installEventFilter(this);
  show();
}

bool TrayStandIn::eventFilter(QObject* object, QEvent* event) {
  if (object == windowHandle() && event->type() == QEvent::Expose && windowHandle()->isExposed()) {
    windowHandle()->removeEventFilter(this);
    const auto minimise = [this] {
      if (isVisible()) showMinimized();
    };
    QMetaObject::invokeMethod(this, minimise, Qt::QueuedConnection);
  }
  return QWidget::eventFilter(object, event);
}

void TrayStandIn::closeEvent(QCloseEvent* event) {
  event->ignore();
  showMinimized();
}

void TrayStandIn::AddCommand(QAction& action) {
  m_commands.push_back(std::make_unique<QToolButton>(this));
  QToolButton& button = *m_commands.back();
  button.setDefaultAction(&action);
  button.setToolButtonStyle(Qt::ToolButtonTextOnly);
  button.setFocusPolicy(Qt::StrongFocus);
  button.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  m_layout.addWidget(&button);
  const auto show = [&button, &action] { button.setVisible(action.isVisible()); };
  connect(&action, &QAction::changed, &button, show);
  show();
}

}  // namespace dayvane::widgets
