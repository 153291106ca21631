// SPDX-License-Identifier: MIT
#include "windows/forms/ErrorNet.h"

#include <exception>
#include <utility>

#include "base/ScopedValue.h"
#include "windows/forms/EventLoop.h"
#include "windows/widgets/Guard.h"

namespace dayvane::widgets {

namespace {

/// What tells the error that is being handled from another one.
std::string NameOfError() {
  try {
    throw;
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return {};
  }
}

bool IsOfAPerson(UINT message) {
  return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
         message == WM_COMMAND || message == WM_SYSCOMMAND;
}

/// What the program was most likely doing.
StringId PhraseFor(UINT message) {
  switch (message) {
    case WM_SYSCOMMAND:
    case WM_CLOSE:
      return kExitingOrHiding;
    case WM_RBUTTONUP:
    case WM_CONTEXTMENU:
      return kDisplayingContextMenu;
    case WM_TIMER:
      return kCheckingForDocuments;
    default:
      return kProcessingSelection;
  }
}

}  // namespace

ErrorNet::ErrorNet(Report report, std::function<void()> giveUp)
    : m_report(std::move(report)), m_giveUp(std::move(giveUp)) {
  SetStrayErrorReport([this] { Catch(); });
}

ErrorNet::~ErrorNet() {
  SetStrayErrorReport({});
}

void ErrorNet::Catch() noexcept {
  try {
    ReportOnce();
  } catch (...) {
    m_giveUp();
  }
}

void ErrorNet::ReportOnce() {
  // While the box is open messages go on: what fails then would pile up boxes.
  if (m_reporting) return;
  const UINT message = MessageInHand();
  const bool isNews = m_told.insert(NameOfError()).second;
  if (!IsOfAPerson(message) && !isNews) return;
  const ScopedValue reporting(m_reporting, true);
  m_report(PhraseFor(message));
}

}  // namespace dayvane::widgets
