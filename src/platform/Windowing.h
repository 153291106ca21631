// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dayvane::controls {
class Form;
class Menu;
}  // namespace dayvane::controls

namespace dayvane::platform {

enum class MessageIcon { None, Information, Question };
enum class MessageButtons { Ok, YesNo };
enum class MessageAnswer { Ok = 1, Yes = 6, No = 7 };  ///< the values of the classic message box

struct Message {
  std::string text;  ///< lines are separated by CR LF
  std::string title;
  MessageButtons buttons = MessageButtons::Ok;
  MessageIcon icon = MessageIcon::None;
};

/// What the about box shows.
struct About {
  std::string title;
  std::string version;
  std::string company;
  std::string copyright;
  std::string warning;  ///< the legal text
  std::string homePage;
};

inline constexpr int kWmClose = 16;   ///< WM_CLOSE: asks the window to close
inline constexpr int kWmUser = 1024;  ///< WM_USER: means nothing, but wakes the message loop

/// Windows, as far as the program asks for more than a control's state.
class Windowing {
 public:
  virtual ~Windowing() = default;

  /// Shows a message box and waits for its answer.
  virtual MessageAnswer ShowMessage(const Message& message) = 0;

  virtual void Beep() = 0;

  /// Lets windows be painted in the middle of long work; quick enough to be called for every item of it. What the user
  /// does meanwhile waits until the work is done, except closing a splash window; no timer of the program's
  /// ticks.
  virtual void ProcessPendingMessages() = 0;

  /// Shows a form and returns when it is hidden again.
  virtual void ShowModal(controls::Form& form) = 0;

  /// Shows the about box, with the libraries that the desktop's part of the program uses.
  virtual void ShowAbout(const About& about) = 0;

  /// Queues a message (kWmClose, kWmUser) for a form and returns at once.
  virtual void PostMessage(controls::Form& form, int message) = 0;

  virtual void SetForegroundWindow(controls::Form& form) = 0;

  /// Pops a menu up: at a point of the form in twips, or at the mouse. `defaultItem` is the index of the item drawn
  /// as the default one, or -1.
  virtual void PopupMenu(controls::Form& form, controls::Menu& menu, double x, double y) = 0;
  virtual void PopupMenuAtMouse(controls::Form& form, controls::Menu& menu, int defaultItem) = 0;
};

}  // namespace dayvane::platform
