// SPDX-License-Identifier: MIT
#include "controls/Deferred.h"

#include <algorithm>
#include <array>
#include <deque>
#include <utility>

namespace dayvane::controls {

namespace {

using MustWait = bool (*)();

struct Waiting {
  std::weak_ptr<const bool> owner;
  MustWait mustWait;
  std::function<void()> act;
};

/// One for the process, as is the event loop. Only the thread of the windows has a part in it.
struct Process {
  std::array<int, 3> scopes{};  ///< open ones, by situation
  std::deque<Waiting> waiting;
  std::function<void()> wake;
};

Process& Now() {
  static Process process;
  return process;
}

int& ScopesOf(Situation situation) {
  return Now().scopes.at(static_cast<std::size_t>(situation));
}

bool IsUserBusy() {
  return IsAtWork() || IsAsking();
}

void WakeIfNeeded() {
  if (!Now().waiting.empty() && Now().wake) Now().wake();
}

void Defer(const std::shared_ptr<const bool>& owner, MustWait mustWait, std::function<void()> act) {
  if (!mustWait()) return act();
  Now().waiting.push_back({owner, mustWait, std::move(act)});
}

}  // namespace

template <Situation situation>
SituationScope<situation>::SituationScope() {
  ++ScopesOf(situation);
}

template <Situation situation>
SituationScope<situation>::~SituationScope() {
  // Nothing waits for the end of what a timer began.
  if (--ScopesOf(situation) == 0 && situation != Situation::Background) WakeIfNeeded();
}

template class SituationScope<Situation::Work>;
template class SituationScope<Situation::Question>;
template class SituationScope<Situation::Background>;

bool IsAtWork() {
  return ScopesOf(Situation::Work) > 0;
}
bool IsAsking() {
  return ScopesOf(Situation::Question) > 0;
}
bool IsInBackground() {
  return ScopesOf(Situation::Background) > 0;
}

void Deferred::AfterWork(std::function<void()> act) {
  Defer(m_isAlive, IsAtWork, std::move(act));
}

void Deferred::AfterWorkAndQuestions(std::function<void()> act) {
  Defer(m_isAlive, IsUserBusy, std::move(act));
}

void SetDeferredWaker(std::function<void()> wake) {
  Now().wake = std::move(wake);
}

void ActOnDeferred() {
  auto& waiting = Now().waiting;
  for (;;) {
    std::erase_if(waiting, [](const Waiting& w) { return w.owner.expired(); });
    // Looked for anew each time: an action may open a box, or add and end others.
    const auto ready = std::find_if(waiting.begin(), waiting.end(), [](const Waiting& w) { return !w.mustWait(); });
    if (ready == waiting.end()) return;
    const auto act = std::move(ready->act);
    waiting.erase(ready);
    try {
      act();
    } catch (...) {
      WakeIfNeeded();  // for the others, while the error goes on to be reported
      throw;
    }
  }
}

}  // namespace dayvane::controls
