// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <stdexcept>
#include <vector>

#include "tests/windows/MessageLoop.h"
#include "windows/forms/ErrorNet.h"
#include "windows/widgets/Guard.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::RunMessages;
using ::testing::ElementsAre;

/// A window that fails at every message of its test.
class FailingWindow : public Window {
 public:
  FailingWindow() : Window({.className = L"Dayvane.Test.Failing"}) {}
  std::string what = "disk";

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_KEYDOWN || message == WM_TIMER || message == WM_APP) throw std::runtime_error(what);
    return Window::OnMessage(message, wParam, lParam);
  }
};

class WindowsErrorNetTest : public ::testing::Test {
 protected:
  void Tell(UINT message) {
    PostMessageW(m_window.Handle(), message, 0, 0);
    RunMessages();
  }

  std::vector<StringId> m_reports;
  bool m_hasGivenUp = false;
  ErrorNet m_net{[this](StringId phrase) { m_reports.push_back(phrase); }, [this] { m_hasGivenUp = true; }};
  FailingWindow m_window;
};

TEST_F(WindowsErrorNetTest, WhatAPersonCausedIsReportedEveryTime) {
  Tell(WM_KEYDOWN);
  Tell(WM_KEYDOWN);

  EXPECT_THAT(m_reports, ElementsAre(kProcessingSelection, kProcessingSelection));
}

TEST_F(WindowsErrorNetTest, WhatTheDesktopCausesIsReportedOnce) {
  Tell(WM_TIMER);
  Tell(WM_TIMER);
  m_window.what = "another disk";
  Tell(WM_TIMER);

  EXPECT_THAT(m_reports, ElementsAre(kCheckingForDocuments, kCheckingForDocuments));
}

TEST(WindowsErrorNet, WhatFailsWhileAReportIsShownIsNotAnotherBox) {
  FailingWindow window;
  int reports = 0;
  const ErrorNet net(
      [&](StringId) {
        ++reports;
        PostMessageW(window.Handle(), WM_KEYDOWN, 0, 0);
        RunMessages();
      },
      [] {});

  PostMessageW(window.Handle(), WM_KEYDOWN, 0, 0);
  RunMessages();

  EXPECT_EQ(reports, 1);
}

TEST(WindowsErrorNet, AReportThatFailsGivesUp) {
  FailingWindow window;
  bool hasGivenUp = false;
  const ErrorNet net([](StringId) { throw std::runtime_error("log"); }, [&] { hasGivenUp = true; });

  PostMessageW(window.Handle(), WM_APP, 0, 0);
  RunMessages();

  EXPECT_TRUE(hasGivenUp);
}

}  // namespace
}  // namespace dayvane::widgets
