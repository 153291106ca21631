// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <glib.h>

namespace dayvane::testing {

/// Runs the main loop until the condition holds, which is looked at after every event and 50 times a second. False
/// when it does not within a time long enough for a busy machine.
inline bool MainLoopRunsUntil(const std::function<bool()>& condition) {
  constexpr unsigned kTick = 20;  // milliseconds
  constexpr int kTicks = 1000;
  int ticks = 0;
  const auto count = [](gpointer counter) -> gboolean {
    ++*static_cast<int*>(counter);
    return G_SOURCE_CONTINUE;
  };
  const guint timer = g_timeout_add(kTick, count, &ticks);
  bool holds = condition();
  while (!holds && ticks < kTicks) {
    g_main_context_iteration(nullptr, TRUE);
    holds = condition();
  }
  g_source_remove(timer);
  return holds;
}

}  // namespace dayvane::testing
