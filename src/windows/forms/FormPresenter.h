// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "controls/Deferred.h"
#include "controls/Form.h"
#include "windows/forms/EventLoop.h"
#include "windows/forms/TopWindow.h"
#include "windows/forms/WhatsThis.h"
#include "windows/widgets/LateShow.h"

namespace dayvane::widgets {

/// What the system tells of the user's session: that it may end soon, that it does, or that it goes on after all.
enum class SessionNews { MayEnd, Ends, GoesOn };

/// Shows a form as a window that somebody else owns and fills: caption, place, state, pointer, closing, keys. `inside`
/// is the window whose size is the form's scale: the form's window itself or a child of it. A window with
/// WS_EX_DLGMODALFRAME is a dialog, in which Tab, Enter, Escape and access keys do what they do in the system's.
///
/// A form's place is that of the frame. Its corner is in twips of the program's dots per inch, which are one number for
/// all screens; its size in twips of the dots per inch of the screen that it is on.
class FormPresenter : public MessageTranslator {
 public:
  FormPresenter(controls::Form& form, TopWindow& window, HWND inside);
  ~FormPresenter() override;

  controls::Form& Form() { return m_form; }
  TopWindow& Window() { return m_window; }
  HWND Inside() const { return m_inside; }

  /// What the window has to do with a message, which it asks before it does anything else; nothing to go on itself.
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

  /// The keys of the window and of its children.
  bool Translate(MSG& message) override;

  /// The keys of the menus. The table must outlive the presenter.
  void SetAccelerators(HACCEL accelerators) { m_accelerators = accelerators; }

  /// Gives form and window a place on the screen, in pixels.
  void MoveTo(const RECT& frame);

  /// The child that has the keyboard when the window first opens, where that is not the first one that can have it.
  void SetFirstFocus(HWND child) { m_focus = child; }

  /// Asks the form to go, after updating its place to that of the window.
  bool RequestUnload(controls::UnloadMode mode);

  /// Closes the window as soon as the program can, and the user has answered what is asked. Returns at once.
  void CloseWhenAnswered();

  /// The user's session ends: what the program still asks is closed, and the form goes as soon as it can.
  void EndSession() { End(controls::UnloadMode::SystemSession); }

  /// Who is told of the session's end, in the place of EndSession: every window of the program hears of it, and some
  /// other than this one may have to go.
  void SetSessionListener(std::function<void(SessionNews)> listener) { m_sessionListener = std::move(listener); }

  /// Shows the form and returns when it is hidden again. Meanwhile the window's owner takes no input.
  void ShowModal();

  /// In front of the other windows, with the keyboard.
  void BringToFront();

  /// What shows the help topic of a control: in What's-This mode that of the control that is clicked, at Shift+F1 that
  /// of the control with the keyboard.
  void SetTopicHelp(TopicHelp show) { m_whatsThis.SetTopicHelp(std::move(show)); }

 private:
  struct Place {
    double left, top, width, height;  ///< twips
    bool operator==(const Place&) const = default;
  };

  static LRESULT CALLBACK InsideProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                          DWORD_PTR self);
  static Place PlaceOf(const controls::Form& form);

  HWND Handle() const { return m_window.Handle(); }
  bool IsDialog() const;
  bool IsHourglass() const;

  std::optional<LRESULT> OnClosing(UINT message, WPARAM wParam);
  std::optional<LRESULT> OnSession(SessionNews news);
  std::optional<LRESULT> OnSystemCommand(WPARAM command);
  std::optional<LRESULT> OnFocus(UINT message, WPARAM wParam);
  std::optional<LRESULT> OnPointer(LPARAM hit) const;
  std::optional<LRESULT> OnContextMenu(LPARAM where);
  void OnPlaced();
  void Later(WPARAM what);
  void DoLater(WPARAM what);
  void End(controls::UnloadMode mode);

  bool KeyDown(const MSG& message);
  bool KeyUp(const MSG& message);
  bool MoveFocus(const MSG& message) const;

  void TellScale();
  void TellState();
  void TellPlace();
  controls::WindowState StateOfWindow() const;
  Place PlaceOfFrame(const RECT& frame) const;
  void Tell(const Place& place);
  RECT ShowWindowAt(const Place& place) const;  ///< returns where it would be on a screen that has room

  void Show();
  void ShowEnabled();
  void ShowPlace();
  void ShowState();
  void ShowPointer();
  void ShowVisible();
  void Hide();
  void TakeState();

  controls::Form& m_form;
  TopWindow& m_window;
  HWND m_inside;
  WhatsThis m_whatsThis;
  HACCEL m_accelerators = nullptr;
  HWND m_focus = nullptr;        ///< the child that had the keyboard last
  HWND m_closedOwner = nullptr;  ///< takes no input as long as this window is shown
  Place m_shownPlace{0, 0, 0, 0};
  controls::WindowState m_shownState = controls::WindowState::Normal;
  controls::UnloadMode m_endMode = controls::UnloadMode::SystemSession;
  bool m_shownEnabled = true;
  bool m_isPlacing = false;  ///< the window moves because the form says so
  bool m_wasShown = false;
  bool m_showsHourglass = false;
  WPARAM m_pressedKey = 0;  ///< a release whose press was elsewhere, such as in a box, means nothing here
  std::function<void(SessionNews)> m_sessionListener;
  controls::Deferred m_deferred;
  LateShow m_latePointer{[this] { ShowPointer(); }};
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
