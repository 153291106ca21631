// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include "controls/Deferred.h"

namespace dayvane::controls {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DeferredTest : public ::testing::Test {
 protected:
  DeferredTest() {
    SetDeferredWaker([this] { ++m_wakes; });
  }
  ~DeferredTest() override { SetDeferredWaker({}); }

  std::function<void()> Acting(int number) {
    return [this, number] { m_acted.push_back(number); };
  }

  int m_wakes = 0;
  std::vector<int> m_acted;
  Deferred m_deferred;
};

TEST_F(DeferredTest, WhileTheProgramWaitsForTheUserAnActionIsDoneAtOnce) {
  m_deferred.AfterWork(Acting(1));
  m_deferred.AfterWorkAndQuestions(Acting(2));
  EXPECT_THAT(m_acted, ElementsAre(1, 2));
  EXPECT_EQ(m_wakes, 0);
}

TEST_F(DeferredTest, InTheMiddleOfWorkAnActionWaitsForTheEventLoopAfterIt) {
  std::optional<WorkScope> work(std::in_place);
  m_deferred.AfterWork(Acting(1));
  ActOnDeferred();
  EXPECT_THAT(m_acted, IsEmpty());

  work.reset();
  EXPECT_THAT(m_acted, IsEmpty()) << "the procedure that worked has not returned yet";
  EXPECT_EQ(m_wakes, 1);
  ActOnDeferred();
  EXPECT_THAT(m_acted, ElementsAre(1));
}

TEST_F(DeferredTest, WorkIsOverWhenItsOutermostScopeIs) {
  std::optional<WorkScope> outer(std::in_place);
  m_deferred.AfterWork(Acting(1));
  { const WorkScope inner; }
  EXPECT_TRUE(IsAtWork());
  EXPECT_EQ(m_wakes, 0);
  outer.reset();
  EXPECT_FALSE(IsAtWork());
  EXPECT_EQ(m_wakes, 1);
}

TEST_F(DeferredTest, ACommandWaitsForTheAnswerToAQuestionAndCaptureDoesNot) {
  std::optional<QuestionScope> question(std::in_place);
  m_deferred.AfterWorkAndQuestions(Acting(1));
  m_deferred.AfterWork(Acting(2));
  ActOnDeferred();
  EXPECT_THAT(m_acted, ElementsAre(2));

  question.reset();
  EXPECT_EQ(m_wakes, 1);
  ActOnDeferred();
  EXPECT_THAT(m_acted, ElementsAre(2, 1));
}

TEST_F(DeferredTest, WhatWaitsIsDoneInItsOrder) {
  std::optional<WorkScope> work(std::in_place);
  m_deferred.AfterWork(Acting(1));
  m_deferred.AfterWorkAndQuestions(Acting(2));
  m_deferred.AfterWork(Acting(3));
  work.reset();
  ActOnDeferred();
  EXPECT_THAT(m_acted, ElementsAre(1, 2, 3));
}

TEST_F(DeferredTest, NothingHappensForWhatHasGone) {
  auto gone = std::make_unique<Deferred>();
  std::optional<WorkScope> work(std::in_place);
  gone->AfterWork(Acting(1));
  m_deferred.AfterWork(Acting(2));
  gone.reset();
  work.reset();
  ActOnDeferred();
  EXPECT_THAT(m_acted, ElementsAre(2));
}

TEST_F(DeferredTest, AnActionThatTakesAnotherOnesOwnerAwayTakesItsActionToo) {
  auto gone = std::make_unique<Deferred>();
  std::optional<WorkScope> work(std::in_place);
  m_deferred.AfterWork([&] { gone.reset(); });
  gone->AfterWork(Acting(1));
  work.reset();
  ActOnDeferred();
  EXPECT_THAT(m_acted, IsEmpty());
}

TEST_F(DeferredTest, AfterAnActionThatAsksTheUserFurtherCommandsWait) {
  std::optional<QuestionScope> question;
  std::optional<WorkScope> work(std::in_place);
  m_deferred.AfterWorkAndQuestions([&] { question.emplace(); });
  m_deferred.AfterWorkAndQuestions(Acting(1));
  work.reset();
  ActOnDeferred();
  EXPECT_THAT(m_acted, IsEmpty());
  question.reset();
  ActOnDeferred();
  EXPECT_THAT(m_acted, ElementsAre(1));
}

TEST_F(DeferredTest, AnActionThatFailsKeepsTheOthersFromNothing) {
  std::optional<WorkScope> work(std::in_place);
  m_deferred.AfterWork([] { throw std::runtime_error("fails"); });
  m_deferred.AfterWork(Acting(1));
  work.reset();
  EXPECT_THROW(ActOnDeferred(), std::runtime_error);
  EXPECT_EQ(m_wakes, 2) << "at the end of the work and for the rest";
  ActOnDeferred();
  EXPECT_THAT(m_acted, ElementsAre(1));
}

TEST_F(DeferredTest, TheEndOfWorkWakesNobodyWhereNothingWaits) {
  { const WorkScope work; }
  EXPECT_EQ(m_wakes, 0);
}

TEST_F(DeferredTest, ATimersWorkIsInTheBackground) {
  EXPECT_FALSE(IsInBackground());
  const BackgroundScope background;
  EXPECT_TRUE(IsInBackground());
  EXPECT_FALSE(IsAtWork());
}

}  // namespace
}  // namespace dayvane::controls
