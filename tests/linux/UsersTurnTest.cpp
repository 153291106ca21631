#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

#include "linux/UsersTurn.h"

namespace dayvane {
namespace {

class UsersTurnTest : public ::testing::Test {
 protected:
  /// For longer than whoever waits takes to look again.
  static void LetEventsRun() {
    bool isOver = false;
    QTimer::singleShot(120, qApp, [&] { isOver = true; });
    (void)QTest::qWaitFor([&] { return isOver; });
  }

  QObject m_context;
  bool m_acted = false;
};

TEST_F(UsersTurnTest, WhoHasTheTurnActsAtOnce) {
  AfterWork(m_context, [this] { m_acted = true; });
  EXPECT_TRUE(m_acted);
}

TEST_F(UsersTurnTest, AnActionWaitsForTheEndOfTheWork) {
  std::optional<WorkScope> work(std::in_place);
  AfterWork(m_context, [this] { m_acted = true; });
  LetEventsRun();
  EXPECT_FALSE(m_acted);

  work.reset();
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_acted; }));
}

TEST_F(UsersTurnTest, ACommandWaitsForTheAnswerToAQuestion) {
  std::optional<QuestionScope> question(std::in_place);
  OnUsersTurn(m_context, [this] { m_acted = true; });
  LetEventsRun();
  EXPECT_FALSE(m_acted);

  question.reset();
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_acted; }));
}

TEST_F(UsersTurnTest, WorkIsOverWhenItsOutermostScopeIs) {
  const WorkScope outer;
  { const WorkScope inner; }
  EXPECT_TRUE(IsAtWork());
}

TEST_F(UsersTurnTest, NothingHappensToWhatHasGone) {
  auto context = std::make_unique<QObject>();
  std::optional<WorkScope> work(std::in_place);
  AfterWork(*context, [this] { m_acted = true; });
  context.reset();
  work.reset();
  LetEventsRun();
  EXPECT_FALSE(m_acted);
}

}  // namespace
}  // namespace dayvane
