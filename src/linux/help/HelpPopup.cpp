// SPDX-License-Identifier: MIT
#include "linux/help/HelpPopup.h"

#include <QGuiApplication>
#include <QScreen>
#include <QToolTip>
#include <algorithm>

#include "linux/help/HelpPage.h"

namespace dayvane::help {

namespace {

constexpr int kTextWidth = 340;
constexpr int kBelowPointer = 12;  ///< points between the place asked about and the window

QRect RoomAt(const QPoint& point) {
  const QScreen* screen = QGuiApplication::screenAt(point);
  if (!screen) screen = QGuiApplication::primaryScreen();
  return screen->availableGeometry();
}

}  // namespace

HelpPopup::HelpPopup(const HelpFile& file, const Topic& topic, QWidget* parent) : QFrame(parent, Qt::Popup) {
  setAccessibleName(QString::fromStdString(topic.title));
  setAccessibleDescription(QString::fromStdString(topic.text));
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setPalette(QToolTip::palette());
  setForegroundRole(QPalette::ToolTipText);
  setBackgroundRole(QPalette::ToolTipBase);
  setAutoFillBackground(true);

  m_text.setForegroundRole(QPalette::ToolTipText);
  m_text.setTextFormat(Qt::RichText);
  m_text.setResourceProvider([this, &file](const QUrl& url) { return PagePicture(file, url, devicePixelRatioF()); });
  m_text.setText(PopupPage(topic, palette()));
  m_text.setWordWrap(true);
  m_text.setMinimumWidth(kTextWidth);
  m_text.setMaximumWidth(kTextWidth);
  m_text.setMargin(6);
  connect(&m_text, &QLabel::linkActivated, this, [this](const QString& name) {
    Q_EMIT TopicChosen(name);
    close();
  });

  m_layout.setContentsMargins(0, 0, 0, 0);
  m_layout.addWidget(&m_text);
}

void HelpPopup::OpenAt(const QPoint& point) {
  adjustSize();
  const QRect room = RoomAt(point);
  QPoint corner(point.x(), point.y() + kBelowPointer);
  // Above the place rather than over it, where there is no room below.
  if (corner.y() + height() > room.bottom()) corner.setY(point.y() - kBelowPointer - height());
  corner.setX(std::max(room.left(), std::min(corner.x(), room.right() - width())));
  corner.setY(std::max(room.top(), std::min(corner.y(), room.bottom() - height())));
  move(corner);
  show();
}

}  // namespace dayvane::help
