// SPDX-License-Identifier: MIT
#include "controls/Deferred.h"

#include <algorithm>
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
struct Situation {
  int work = 0;  ///< open scopes
  int questions = 0;
  int background = 0;
  std::deque<Waiting> waiting;
  std::function<void()> wake;
};

Situation& Now() {
  static Situation situation;
  return situation;
}

bool IsUserBusy() {
  return IsAtWork() || IsAsking();
}

void WakeIfNeeded() {
  if (!Now().waiting.empty() && Now().wake) Now().wake();
}

void Leave(int& scopes) {
  if (--scopes == 0) WakeIfNeeded();
}

void Defer(const std::shared_ptr<const bool>& owner, MustWait mustWait, std::function<void()> act) {
  if (!mustWait()) return act();
  Now().waiting.push_back({owner, mustWait, std::move(act)});
}

}  // namespace

WorkScope::WorkScope() {
  ++Now().work;
}
WorkScope::~WorkScope() {
  Leave(Now().work);
}

QuestionScope::QuestionScope() {
  ++Now().questions;
}
QuestionScope::~QuestionScope() {
  Leave(Now().questions);
}

BackgroundScope::BackgroundScope() {
  ++Now().background;
}
BackgroundScope::~BackgroundScope() {
  --Now().background;
}

bool IsAtWork() {
  return Now().work > 0;
}
bool IsAsking() {
  return Now().questions > 0;
}
bool IsInBackground() {
  return Now().background > 0;
}

void Deferred::AfterWork(std::function<void()> act) {
  Defer(m_isAlive, IsAtWork, std::move(act));
}

void Deferred::OnUsersTurn(std::function<void()> act) {
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
