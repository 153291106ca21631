// SPDX-License-Identifier: MIT
#include "linux/forms/ScreenFit.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace dayvane::widgets {

QRect FitToScreen(const QRect& wanted, const QRect& available, const QSize& frame) {
  const QSize size = wanted.size().boundedTo(available.size() - frame);
  const int right = available.right() + 1 - size.width() - frame.width();
  const int bottom = available.bottom() + 1 - size.height() - frame.height();
  const QPoint place(std::max(std::min(wanted.x(), right), available.x()),
                     std::max(std::min(wanted.y(), bottom), available.y()));
  return {place, size};
}

QRect AvailableScreenFor(const QRect& wanted) {
  const auto shown = [&](const QRect& available) {
    const QRect common = available & wanted;
    return static_cast<qint64>(common.width()) * common.height();
  };
  QRect best = QGuiApplication::primaryScreen()->availableGeometry();
  for (const QScreen* screen : QGuiApplication::screens())
    if (shown(screen->availableGeometry()) > shown(best)) best = screen->availableGeometry();
  return best;
}

}  // namespace dayvane::widgets
