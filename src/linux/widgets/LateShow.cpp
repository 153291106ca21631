// SPDX-License-Identifier: MIT
#include "linux/widgets/LateShow.h"

#include <utility>

#include "controls/Deferred.h"

namespace dayvane::widgets {

namespace {

constexpr int kLongEnoughMilliseconds = 100;

}  // namespace

LateShow::LateShow(std::function<void()> show) : m_show(std::move(show)) {
  m_timer.setSingleShot(true);
  m_timer.setInterval(kLongEnoughMilliseconds);
  QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { m_show(); });
}

void LateShow::Changed(bool isBusy) {
  if (!isBusy || !controls::IsInBackground()) {
    m_timer.stop();
    m_show();
  } else if (!m_timer.isActive()) {
    m_timer.start();
  }
}

}  // namespace dayvane::widgets
