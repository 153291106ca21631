// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QTimer>
#include <gmock/gmock.h>
#include <stdexcept>

#include "linux/glib/ErrorNet.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;

/// Fails at every event.
class Failing : public QObject {
 public:
  bool event(QEvent*) override {
    whileFailing();
    throw std::runtime_error(error);
  }

  std::string error = "broken";
  std::function<void()> whileFailing = [] {};
};

class ErrorNetTest : public ::testing::Test {
 protected:
  static void Paint(QObject& object) { Send(object, QEvent(QEvent::Paint)); }
  static void TypeInto(QObject& object) { Send(object, QKeyEvent(QEvent::KeyPress, Qt::Key_A, {})); }

  template <class Event>
  static void Send(QObject& object, Event event) {
    QCoreApplication::sendEvent(&object, &event);
  }

  Failing m_object;
  std::vector<StringId> m_reported;
  std::function<void()> m_whileReported = [] {};
  int m_givenUp = 0;
  ErrorNet m_net{[this](StringId phrase) {
                   m_reported.push_back(phrase);
                   m_whileReported();
                 },
                 [this] { ++m_givenUp; }};
};

TEST_F(ErrorNetTest, WhatAHandlerLetsEscapeIsReportedAndTheProgramGoesOn) {
  TypeInto(m_object);
  EXPECT_THAT(m_reported, ElementsAre(kProcessingSelection));
}

TEST_F(ErrorNetTest, TheReportNamesWhatTheProgramWasDoing) {
  for (const auto type : {QEvent::Resize, QEvent::Close, QEvent::ContextMenu, QEvent::Timer}) {
    m_object.error = std::to_string(type);
    Send(m_object, QEvent(type));
  }
  EXPECT_THAT(m_reported, ElementsAre(kResizing, kExitingOrHiding, kDisplayingContextMenu, kCheckingForDocuments));
}

TEST_F(ErrorNetTest, TheReportFindsTheErrorThatIsBeingHandled) {
  std::string error;
  m_whileReported = [&] {
    try {
      throw;
    } catch (const std::exception& current) {
      error = current.what();
    }
  };
  TypeInto(m_object);
  EXPECT_EQ(error, "broken");
}

TEST_F(ErrorNetTest, APersonIsAnsweredEveryTime) {
  TypeInto(m_object);
  TypeInto(m_object);
  EXPECT_THAT(m_reported, ElementsAre(kProcessingSelection, kProcessingSelection));
}

TEST_F(ErrorNetTest, WhatFailsByItselfAgainAndAgainIsToldOnce) {
  Paint(m_object);
  Paint(m_object);
  m_object.error = "broken in another way";
  Paint(m_object);
  EXPECT_EQ(m_reported.size(), 2U);
}

TEST_F(ErrorNetTest, NothingIsReportedOnTopOfAReport) {
  m_whileReported = [this] { TypeInto(m_object); };
  TypeInto(m_object);
  EXPECT_EQ(m_reported.size(), 1U);
}

TEST_F(ErrorNetTest, WhoeverCannotEvenBeToldGivesUp) {
  m_whileReported = [] { throw std::bad_alloc(); };
  TypeInto(m_object);
  EXPECT_EQ(m_givenUp, 1);
}

TEST_F(ErrorNetTest, AThingThatIsNoErrorIsCaughtToo) {
  m_object.whileFailing = [] { throw 42; };  // NOLINT(hicpp-exception-baseclass): what a library might throw
  TypeInto(m_object);
  EXPECT_THAT(m_reported, ElementsAre(kProcessingSelection));
}

TEST_F(ErrorNetTest, NoErrorLeavesACallback) {
  CatchErrors(kOpeningFolder, [] { throw std::runtime_error("broken"); });
  EXPECT_THAT(m_reported, ElementsAre(kOpeningFolder));
}

TEST_F(ErrorNetTest, TheLoopIsLeftInOrderWithItsExitCode) {
  std::vector<std::string> happened;
  QTimer::singleShot(0, qApp, [&] {
    happened.emplace_back("ran");
    QCoreApplication::exit(3);
  });
  EXPECT_EQ(RunEventLoop([&] { happened.emplace_back("left"); }), 3);
  EXPECT_THAT(happened, ElementsAre("ran", "left"));
}

TEST_F(ErrorNetTest, ALeavingThatFailsIsReported) {
  QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
  RunEventLoop([] { throw std::runtime_error("broken"); });
  EXPECT_THAT(m_reported, ElementsAre(kExitingOrHiding));
}

TEST(WithoutAnErrorNet, AnErrorFliesOn) {
  Failing object;
  QEvent event(QEvent::User);
  EXPECT_THROW(QCoreApplication::sendEvent(&object, &event), std::runtime_error);
  EXPECT_EQ(ErrorNet::Current(), nullptr);
}

TEST(WithoutAnErrorNet, NoErrorLeavesACallback) {
  EXPECT_NO_THROW(CatchErrors(kOpeningFolder, [] { throw std::runtime_error("broken"); }));
}

}  // namespace
}  // namespace dayvane
