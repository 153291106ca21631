#pragma once

#include <functional>

class QObject;

/// Events run in three situations: while the program waits for the user, in the middle of its work so that windows are
/// painted, and while a box or dialog of its own asks the user something. What begins something new must not begin it
/// in the second, and commands from outside the dialog not in the third. Capture goes on in the third.
namespace dayvane {

/// The program is in the middle of its work for as long as this lives.
class WorkScope {
 public:
  WorkScope();
  WorkScope(const WorkScope&) = delete;
  WorkScope& operator=(const WorkScope&) = delete;
  ~WorkScope();
};

/// The user is being asked something for as long as this lives.
class QuestionScope {
 public:
  QuestionScope();
  QuestionScope(const QuestionScope&) = delete;
  QuestionScope& operator=(const QuestionScope&) = delete;
  ~QuestionScope();
};

/// What runs for as long as this lives was begun by a timer and not by the user: how it goes reaches the screen only
/// when it lasts.
class BackgroundScope {
 public:
  BackgroundScope();
  BackgroundScope(const BackgroundScope&) = delete;
  BackgroundScope& operator=(const BackgroundScope&) = delete;
  ~BackgroundScope();
};

bool IsAtWork();
bool IsAsking();
bool IsInBackground();

/// Acts at once if the program is not at work, else soon after it has done. Never if `context` is gone by then.
void AfterWork(QObject& context, std::function<void()> act);

/// The same, but an open box or dialog must have been answered too.
void OnUsersTurn(QObject& context, std::function<void()> act);

}  // namespace dayvane
