// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

/// Events run in three situations: while the program waits for the user, in the middle of its work so that windows are
/// painted, and while a box or dialog of its own asks the user something. What begins something new must not begin it
/// in the second, and commands from outside the dialog not in the third. Capture goes on in the third.
namespace dayvane::controls {

enum class Situation { Work, Question, Background };

/// The program is in this situation for as long as this lives.
template <Situation situation>
class SituationScope {
 public:
  SituationScope();
  SituationScope(const SituationScope&) = delete;
  SituationScope& operator=(const SituationScope&) = delete;
  ~SituationScope();
};

/// In the middle of the program's work.
using WorkScope = SituationScope<Situation::Work>;

/// While the user is being asked something.
using QuestionScope = SituationScope<Situation::Question>;

/// For what a timer began and not the user: how it goes reaches the screen only when it lasts.
using BackgroundScope = SituationScope<Situation::Background>;

bool IsAtWork();
bool IsAsking();
bool IsInBackground();

/// Actions that wait until the program can begin something new. They go with the object that they belong to, which
/// holds this.
class Deferred {
 public:
  /// Acts at once if the program is not at work, else when it has done.
  void AfterWork(std::function<void()> act);

  /// The same, but an open box or dialog must have been answered too.
  void AfterWorkAndQuestions(std::function<void()> act);

 private:
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

/// How a desktop has ActOnDeferred called soon, from its event loop: the end of the outermost scope is still inside the
/// procedure that opened it. Without one, what waits waits for ever.
void SetDeferredWaker(std::function<void()> wake);

/// Does what waits and may be done now, in its order.
void ActOnDeferred();

}  // namespace dayvane::controls
