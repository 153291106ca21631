// SPDX-License-Identifier: MIT
#include "app/CWaitCursor.h"

#include "app/IgnoreErrors.h"

namespace dayvane {

CWaitCursor::CWaitCursor(const Application& application) : m_form(application.activeForm) {
  if (m_form == nullptr) return;
  m_pointer = m_form->Pointer();
  IgnoreErrors([&] {
    m_form->SetPointer(controls::MousePointer::Hourglass);
    m_form->Refresh();
  });
}

void CWaitCursor::SetMessage(controls::StatusBar& statusBar, const std::string& message) {
  m_statusBar = &statusBar;
  m_text = statusBar.Text();
  statusBar.SetText(message);
  statusBar.Refresh();
}

CWaitCursor::~CWaitCursor() {
  IgnoreErrors([&] {
    if (m_statusBar != nullptr) {
      m_statusBar->SetText(m_text);
      m_statusBar->Refresh();
    }
    if (m_form != nullptr) m_form->SetPointer(m_pointer);
  });
}

}  // namespace dayvane
