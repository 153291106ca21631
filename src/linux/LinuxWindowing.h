// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <map>
#include <memory>

#include "linux/widgets/MenuPresenter.h"
#include "platform/Windowing.h"

namespace dayvane::widgets {

class FormPresenter;

/// Message boxes, menus at a point and windows. A form's window is registered by its maker; a form without a window
/// is not shown.
class LinuxWindowing : public platform::Windowing {
 public:
  /// The form's window, until it is forgotten. The presenter must live until then.
  void Register(FormPresenter& presenter);
  void Forget(FormPresenter& presenter);

  /// The user's session ends, and no one is there to answer: from now on a question is answered as if its box had been
  /// closed, and a message, which is in the logs too, is not shown. A box or dialog that is open is closed.
  void EndSession();

  platform::MessageAnswer ShowMessage(const platform::Message& message) override;
  void Beep() override;
  void ShowAbout(const platform::About& about) override;

  /// Runs waiting events now and then. A splash window is the only one that the user can close meanwhile.
  void ProcessPendingMessages() override;

  void ShowModal(controls::Form& form) override;
  void PostMessage(controls::Form& form, int message) override;
  void SetForegroundWindow(controls::Form& form) override;

  /// Both return at once; the menu raises Click when an item is chosen.
  void PopupMenu(controls::Form& form, controls::Menu& menu, double x, double y) override;
  void PopupMenuAtMouse(controls::Form& form, controls::Menu& menu, int defaultItem) override;

 private:
  FormPresenter* Find(const controls::Form& form) const;
  QWidget* ShownSplash() const;
  QWidget* OwnerOfBox() const;  ///< the window that a box belongs to, over which it opens
  void Popup(FormPresenter* presenter, controls::Menu& menu, int defaultItem, QPoint at);

  bool m_sessionEnds = false;
  std::map<const controls::Form*, FormPresenter*> m_presenters;
  std::unique_ptr<MenuPresenter> m_popup;  ///< the menu popped up last
  QElapsedTimer m_sinceEvents;             ///< since pending messages were run last
};

}  // namespace dayvane::widgets
