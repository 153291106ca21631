// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/Control.h"

/// The small controls, each a few values and events.
namespace dayvane::controls {

class StatusBar : public Control {
 public:
  const std::string& Text() const { return m_text; }
  void SetText(std::string text) { Assign(m_text, std::move(text)); }

 private:
  std::string m_text;
};

/// Raises `Timer` every `Interval` milliseconds while enabled; setting either starts the interval anew.
class Timer : public Control {
 public:
  Timer() { SetEnabled(false); }
  int Interval() const { return m_interval; }  ///< milliseconds; 0 never fires
  void SetInterval(int milliseconds) { Assign(m_interval, milliseconds); }

  /// What the desktop's clock calls: the tick, unless it comes late for a timer that was disabled meanwhile.
  void Fire() {
    if (Enabled() && m_interval > 0) Tick.Raise();
  }

  Signal<> Tick;

 private:
  int m_interval = 0;
};

/// The icon in the notification area.
class SystemTray : public Control {
 public:
  int Picture() const { return m_picture; }  ///< number of an icon resource, 0 before one is set
  void SetPicture(int resource) { Assign(m_picture, resource); }
  const std::string& TipText() const { return m_tipText; }
  void SetTipText(std::string text) { Assign(m_tipText, std::move(text)); }

  Signal<int, int> MouseUp;  ///< button (1 left, 2 right, 4 middle), id

 private:
  int m_picture = 0;
  std::string m_tipText;
};

/// A pane that holds other controls. Its inner size is its size: panes have no border of their own.
class PictureBox : public Control {
 public:
  double ScaleWidth() const { return Width(); }
  double ScaleHeight() const { return Height(); }
  Signal<> Resize;

 protected:
  void SizeChanged() override { Resize.Raise(); }
};

/// A rule line; only its ends matter.
class Line : public Control {
 public:
  double X2() const { return m_x2; }
  void SetX2(double x2) { Assign(m_x2, x2); }

 private:
  double m_x2 = 0;
};

class Label : public Control {
 public:
  const std::string& Caption() const { return m_caption; }
  void SetCaption(std::string caption) { Assign(m_caption, std::move(caption)); }

 private:
  std::string m_caption;
};

/// A picture of the program's resources.
class Image : public Control {
 public:
  int Picture() const { return m_picture; }
  void SetPicture(int resource) { Assign(m_picture, resource); }
  Signal<> Click;

 private:
  int m_picture = 0;
};

/// A push button, or one of a toolbar's.
class Button : public Control {
 public:
  const std::string& Caption() const { return m_caption; }
  void SetCaption(std::string caption) { Assign(m_caption, std::move(caption)); }
  const std::string& ToolTipText() const { return m_toolTipText; }
  void SetToolTipText(std::string text) { Assign(m_toolTipText, std::move(text)); }

  /// What the user's press does: nothing while disabled.
  void Press() {
    if (Enabled()) Click.Raise();
  }

  Signal<> Click;

 private:
  std::string m_caption;
  std::string m_toolTipText;
};

}  // namespace dayvane::controls
