// SPDX-License-Identifier: MIT
#include "windows/forms/EventLoop.h"

#include <algorithm>
#include <vector>

#include "base/ScopedValue.h"
#include "controls/Deferred.h"
#include "windows/widgets/Guard.h"

namespace dayvane::widgets {

namespace {

constexpr UINT kWake = WM_APP;

/// One for the process, as is the loop.
struct LoopState {
  std::vector<MessageTranslator*> translators;
  UINT inHand = WM_NULL;
};

LoopState& TheLoop() {
  static LoopState state;
  return state;
}

bool IsTranslated(MSG& message) {
  // A copy: what a key does may open or close windows.
  const std::vector<MessageTranslator*> translators = TheLoop().translators;
  return std::any_of(translators.begin(), translators.end(), [&](MessageTranslator* translator) {
    const auto& alive = TheLoop().translators;
    return std::find(alive.begin(), alive.end(), translator) != alive.end() && translator->Translate(message);
  });
}

}  // namespace

MessageTranslator::MessageTranslator() {
  TheLoop().translators.push_back(this);
}

MessageTranslator::~MessageTranslator() {
  std::erase(TheLoop().translators, this);
}

DeferredWaker::DeferredWaker() : Window({.className = L"Dayvane.Waker", .parent = HWND_MESSAGE}) {
  controls::SetDeferredWaker([this] {
    if (!m_isCalled) m_isCalled = PostMessageW(Handle(), kWake, 0, 0) != 0;
  });
}

DeferredWaker::~DeferredWaker() {
  controls::SetDeferredWaker({});
}

LRESULT DeferredWaker::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kWake) return Window::OnMessage(message, wParam, lParam);
  m_isCalled = false;
  controls::ActOnDeferred();
  return 0;
}

void Dispatch(MSG& message) noexcept {
  const ScopedValue inHand(TheLoop().inHand, message.message);
  Guarded(
      [&] {
        if (IsTranslated(message)) return 0;
        TranslateMessage(&message);
        DispatchMessageW(&message);
        return 0;
      },
      0);
}

UINT MessageInHand() {
  return TheLoop().inHand;
}

void RunEventLoopUntil(const std::function<bool()>& isDone) {
  MSG message{};
  while (!isDone()) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got > 0) {
      Dispatch(message);
      continue;
    }
    if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));  // the loop around this one ends too
    return;
  }
}

int RunEventLoop(const std::function<void()>& leave) {
  MSG message{};
  // -1 is an error of the call itself, which would come again for ever.
  while (GetMessageW(&message, nullptr, 0, 0) > 0) Dispatch(message);
  Guarded(
      [&] {
        leave();
        return 0;
      },
      0);
  return static_cast<int>(message.wParam);
}

}  // namespace dayvane::widgets
