// SPDX-License-Identifier: MIT
#include "windows/widgets/LateShow.h"

#include <utility>
#include <vector>

#include "controls/Deferred.h"

namespace dayvane::widgets {

namespace {

constexpr ULONGLONG kLongEnoughMilliseconds = 100;

std::vector<LateShow*>& LateShows() {
  static std::vector<LateShow*> all;
  return all;
}

}  // namespace

LateShow::LateShow(std::function<void()> show) : m_show(std::move(show)) {
  LateShows().push_back(this);
}

LateShow::~LateShow() {
  std::erase(LateShows(), this);
}

void LateShow::Changed(bool isBusy) {
  if (!isBusy || !controls::IsInBackground()) {
    m_since.reset();
    m_show();
  } else if (!m_since) {
    m_since = GetTickCount64();
  }
}

void LateShow::ShowWhatLasts() {
  for (LateShow* late : LateShows()) {
    if (!late->m_since || GetTickCount64() - *late->m_since < kLongEnoughMilliseconds) continue;
    late->m_since.reset();
    late->m_show();
  }
}

}  // namespace dayvane::widgets
