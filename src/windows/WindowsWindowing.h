// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <optional>

#include "platform/Windowing.h"
#include "windows/forms/EventLoop.h"
#include "windows/widgets/MenuPresenter.h"

namespace dayvane::widgets {

class FormPresenter;

/// Message boxes, menus at a point and windows. A form's window is registered by its maker; a form without a window
/// is not shown. While it lives, the event loop does what waits in controls/Deferred.h.
class WindowsWindowing : public platform::Windowing {
 public:
  WindowsWindowing();

  /// The form's window, until it is forgotten. The presenter must live until then.
  void Register(FormPresenter& presenter);
  void Forget(FormPresenter& presenter);

  /// The user's session ends, and no one is there to answer: from now on a question is answered as if its box had been
  /// closed, and a message, which is in the logs too, is not shown. A box or dialog that is open is closed.
  void EndSession();

  /// The session that was to end does not: another program refused.
  void SessionGoesOn() { m_sessionEnds = false; }

  platform::MessageAnswer ShowMessage(const platform::Message& message) override;
  void Beep() override;
  void ShowAbout(const platform::About& about) override;

  /// Paints now and then. A splash window is the only one that the user can close meanwhile.
  void ProcessPendingMessages() override;

  void ShowModal(controls::Form& form) override;
  void PostMessage(controls::Form& form, int message) override;
  void SetForegroundWindow(controls::Form& form) override;

  /// Both return when the menu has been closed; it raises Click when an item is chosen.
  void PopupMenu(controls::Form& form, controls::Menu& menu, double x, double y) override;
  void PopupMenuAtMouse(controls::Form& form, controls::Menu& menu, int defaultItem) override;

 private:
  FormPresenter* Find(const controls::Form& form) const;
  HWND ShownSplash() const;
  HWND OwnerOfBox() const;  ///< the window that a box belongs to, over which it opens; nullptr when none is shown
  void Popup(FormPresenter* presenter, controls::Menu& menu, int defaultItem, POINT at);

  bool m_sessionEnds = false;
  DeferredWaker m_waker;
  std::map<const controls::Form*, FormPresenter*> m_presenters;
  std::unique_ptr<MenuPresenter> m_popup;  ///< the menu popped up last: what was chosen in it may still wait
  bool m_isPopupOpen = false;
  std::optional<ULONGLONG> m_lastPainting;  ///< milliseconds since the system's start
};

}  // namespace dayvane::widgets
