// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "windows/files/Win32.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

/// Sees every message of the program's loops before the window that it is for, as long as it lives.
class MessageTranslator {
 public:
  MessageTranslator();
  MessageTranslator(const MessageTranslator&) = delete;
  MessageTranslator& operator=(const MessageTranslator&) = delete;
  virtual ~MessageTranslator();

  /// Whether the message has been dealt with and must not reach its window.
  virtual bool Translate(MSG& message) = 0;
};

/// Has what waits in controls/Deferred.h done soon. It is told through a window of its own: messages of a thread get
/// lost in the loops of the system's boxes and menus.
class DeferredWaker : public Window {
 public:
  DeferredWaker();
  ~DeferredWaker() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool m_isCalled = false;
};

/// Hands one message on: to the translators, else to its window. No error gets out.
void Dispatch(MSG& message) noexcept;

/// The number of the message that is being handed on, WM_NULL for none.
UINT MessageInHand();

/// Runs the loop until it is done, which is asked after every message. At the end of the program it returns at once.
void RunEventLoopUntil(const std::function<bool()>& isDone);

/// Runs the program's loop and returns its exit code. `leave` is called however the loop ends.
int RunEventLoop(const std::function<void()>& leave);

}  // namespace dayvane::widgets
