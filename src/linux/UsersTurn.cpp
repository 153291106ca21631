#include "linux/UsersTurn.h"

#include <QTimer>

namespace dayvane {

namespace {

constexpr int kLookAgainMilliseconds = 50;

// Counts of open scopes: one for the process, as is the event loop. Only the thread of the windows has a part in it.
int& Work() {
  static int depth = 0;
  return depth;
}
int& Questions() {
  static int depth = 0;
  return depth;
}

int& Background() {
  static int depth = 0;
  return depth;
}

void Once(QObject& context, bool (*waits)(), std::function<void()> act) {
  if (!waits()) return act();
  QTimer::singleShot(kLookAgainMilliseconds, &context,
                     [&context, waits, act = std::move(act)] { Once(context, waits, act); });
}

}  // namespace

WorkScope::WorkScope() {
  ++Work();
}
WorkScope::~WorkScope() {
  --Work();
}

QuestionScope::QuestionScope() {
  ++Questions();
}
QuestionScope::~QuestionScope() {
  --Questions();
}

BackgroundScope::BackgroundScope() {
  ++Background();
}
BackgroundScope::~BackgroundScope() {
  --Background();
}

bool IsAtWork() {
  return Work() > 0;
}
bool IsAsking() {
  return Questions() > 0;
}

bool IsInBackground() {
  return Background() > 0;
}

void AfterWork(QObject& context, std::function<void()> act) {
  Once(context, IsAtWork, std::move(act));
}

void OnUsersTurn(QObject& context, std::function<void()> act) {
  Once(
      context, [] { return IsAtWork() || IsAsking(); }, std::move(act));
}

}  // namespace dayvane
