// SPDX-License-Identifier: MIT
#include "linux/widgets/TimerPresenter.h"

#include "controls/Deferred.h"

namespace dayvane::widgets {

TimerPresenter::TimerPresenter(controls::Timer& control) : m_control(control) {
  QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
    if (controls::IsAtWork()) return;
    const controls::BackgroundScope background;
    m_control.Fire();
  });
  m_changed = control.Changed.ConnectScoped([this] { Show(); });
  Show();
}

void TimerPresenter::Show() {
  const int interval = m_control.Enabled() ? std::max(m_control.Interval(), 0) : 0;
  if (interval == m_shownInterval) return;
  m_shownInterval = interval;
  if (interval == 0)
    m_timer.stop();
  else
    m_timer.start(interval);
}

}  // namespace dayvane::widgets
