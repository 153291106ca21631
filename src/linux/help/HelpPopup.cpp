// SPDX-License-Identifier: MIT
#include "linux/help/HelpPopup.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QToolTip>
#include <QVBoxLayout>
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
  setAttribute(Qt::WA_DeleteOnClose);
  setAccessibleName(QString::fromStdString(topic.title));
  setAccessibleDescription(QString::fromStdString(topic.text));
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setPalette(QToolTip::palette());
  setForegroundRole(QPalette::ToolTipText);
  setBackgroundRole(QPalette::ToolTipBase);
  setAutoFillBackground(true);

  auto* text = new QLabel(this);
  text->setForegroundRole(QPalette::ToolTipText);
  text->setTextFormat(Qt::RichText);
  text->setResourceProvider([this, &file](const QUrl& url) { return PagePicture(file, url, devicePixelRatioF()); });
  text->setText(PopupPage(topic, palette()));
  text->setWordWrap(true);
  text->setMinimumWidth(kTextWidth);
  text->setMaximumWidth(kTextWidth);
  text->setMargin(6);
  connect(text, &QLabel::linkActivated, this, [this](const QString& name) {
    Q_EMIT TopicChosen(name);
    close();
  });

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text);
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

void HelpPopup::keyPressEvent(QKeyEvent*) {
  close();
}

void HelpPopup::mousePressEvent(QMouseEvent*) {
  close();
}

}  // namespace dayvane::help
