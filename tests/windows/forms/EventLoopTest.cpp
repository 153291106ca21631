// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <stdexcept>

#include "controls/Deferred.h"
#include "tests/windows/MessageLoop.h"
#include "windows/forms/EventLoop.h"
#include "windows/widgets/Guard.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::RunMessages;
using dayvane::testing::Soon;

TEST(WindowsEventLoop, ItEndsWithTheCodeThatItIsToldAndLeaves) {
  bool hasLeft = false;
  PostQuitMessage(3);

  EXPECT_EQ(RunEventLoop([&] { hasLeft = true; }), 3);

  EXPECT_TRUE(hasLeft);
}

TEST(WindowsEventLoop, AnErrorOnLeavingIsReported) {
  bool isReported = false;
  SetStrayErrorReport([&] { isReported = true; });
  PostQuitMessage(0);

  RunEventLoop([] { throw std::runtime_error("disk"); });

  SetStrayErrorReport({});
  EXPECT_TRUE(isReported);
}

TEST(WindowsEventLoop, TheProgramsEndEndsALoopWithinTheLoopToo) {
  PostQuitMessage(5);

  RunEventLoopUntil([] { return false; });

  EXPECT_EQ(RunEventLoop([] {}), 5);
}

TEST(WindowsEventLoop, WhatWaitsForTheEndOfWorkIsDoneByTheLoop) {
  const DeferredWaker waker;
  controls::Deferred deferred;
  bool isDone = false;
  {
    const controls::WorkScope work;
    deferred.AfterWork([&] { isDone = true; });
  }
  EXPECT_FALSE(isDone);

  RunMessages();

  EXPECT_TRUE(isDone);
}

TEST(WindowsEventLoop, WhatWaitsIsDoneWhileABoxOfTheSystemsIsOpen) {
  const DeferredWaker waker;
  controls::Deferred deferred;
  bool isDone = false;
  const Soon work([&] {
    {
      const controls::WorkScope scope;
      deferred.AfterWork([&] { isDone = true; });
    }
    PostMessageW(FindWindowW(L"#32770", L"Loop"), WM_CLOSE, 0, 0);
  });

  MessageBoxW(nullptr, L"Wait", L"Loop", MB_OK);

  EXPECT_TRUE(isDone);
}

class AllKeys : public MessageTranslator {
 public:
  bool Translate(MSG& message) override { return message.message == WM_KEYDOWN && ++m_keys > 0; }
  int m_keys = 0;
};

class CountedWindow : public Window {
 public:
  CountedWindow() : Window({.className = L"Dayvane.Test.Counted"}) {}
  int m_keys = 0;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_KEYDOWN) ++m_keys;
    return Window::OnMessage(message, wParam, lParam);
  }
};

TEST(WindowsEventLoop, AKeyThatATranslatorTookDoesNotReachItsWindow) {
  CountedWindow window;
  {
    AllKeys keys;
    PostMessageW(window.Handle(), WM_KEYDOWN, VK_F5, 1);
    RunMessages();
    EXPECT_EQ(keys.m_keys, 1);
    EXPECT_EQ(window.m_keys, 0);
  }
  PostMessageW(window.Handle(), WM_KEYDOWN, VK_F5, 1);
  RunMessages();
  EXPECT_EQ(window.m_keys, 1);
}

}  // namespace
}  // namespace dayvane::widgets
