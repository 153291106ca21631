// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>
#include <functional>
#include <vector>

#include "controls/Deferred.h"
#include "controls/Form.h"
#include "linux/widgets/LateShow.h"

class QHelpEvent;
class QKeyEvent;
class QWidget;

namespace dayvane::widgets {

/// Shows a form as a window that somebody else owns and fills: caption, place, state, pointer, closing. `inside` is
/// the part of the window whose size is the form's scale: the window itself or its central widget.
///
/// A form's place is where the frame's corner is, its size the window's without the frame: how thick the frame is
/// becomes known only when the window is on the screen, and a size that counted it would grow with every start.
class FormPresenter : public QObject {
 public:
  FormPresenter(controls::Form& form, QWidget& window, QWidget& inside);
  ~FormPresenter() override;

  controls::Form& Form() { return m_form; }
  QWidget& Window() { return m_window; }
  QWidget& Inside() { return m_inside; }

  /// Asks the form to go, after updating its place to that of the window.
  bool RequestUnload(controls::UnloadMode mode);

  /// Closes the window as soon as the program can, and the user has answered what is asked.
  void CloseWhenAnswered();

  /// The user's session ends: what the program still asks is closed, and the form goes as soon as it can.
  void EndSession();

  /// Shows the form and returns when it is hidden again.
  void ShowModal();

  /// In front of the other windows, with the keyboard.
  void BringToFront();

  /// What shows the help topic of a control, at a point of the screen: in What's-This mode that of the control that is
  /// clicked, at Shift+F1 that of the control with the keyboard.
  void SetTopicHelp(std::function<void(int id, QPoint at)> show) { m_showTopic = std::move(show); }

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool WindowEvent(QEvent* event);
  bool Close(QEvent* event);
  bool EscapeCloses(const QKeyEvent& event);
  bool KeyDown(const QKeyEvent& event);
  bool WhatsThis(const QHelpEvent& event, bool show);
  bool ExplainFocus();
  void KeyUp(const QKeyEvent& event);
  void TellScale();
  void TellState();
  void TellPlace();

  void Show();
  void ShowPlace();
  void ShowState();
  void ShowPointer();
  void ShowVisible();

  controls::Form& m_form;
  QWidget& m_window;
  QWidget& m_inside;
  std::function<void(int, QPoint)> m_showTopic;
  QTimer m_placeTimer;
  QRectF m_shownPlace;  ///< twips
  controls::WindowState m_shownState = controls::WindowState::Normal;
  controls::Deferred m_deferred;
  bool m_showsHourglass = false;
  LateShow m_latePointer{[this] { ShowPointer(); }};
  bool m_wasShown = false;
  int m_takenKey = 0;  ///< the release of this key is ignored, because its press was handled
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
