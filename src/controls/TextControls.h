// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/Control.h"

namespace dayvane::controls {

/// A field of one line. The selection counts characters of the text as it is stored, from 0.
class TextBox : public Control {
 public:
  const std::string& Text() const { return m_text; }
  void SetText(std::string text) { Assign(m_text, std::move(text)); }

  int SelStart() const { return m_selStart; }
  int SelLength() const { return m_selLength; }
  void SetSelection(int start, int length) {
    m_selStart = start;
    m_selLength = length;
    SelectionWanted.Raise();
  }

  /// What a typed character does: a listener may set the code to 0, and it is discarded. Returns whether it stays.
  bool Type(int character) {
    KeyPress.Raise(character);
    return character != 0;
  }

  Signal<> GotFocus;
  Signal<int&> KeyPress;     ///< character code
  Signal<> SelectionWanted;  ///< for presenters

 private:
  std::string m_text;
  int m_selStart = 0;
  int m_selLength = 0;
};

/// A pair of arrows beside a field.
class UpDown : public Control {
 public:
  Signal<> UpClick;
  Signal<> DownClick;
};

}  // namespace dayvane::controls
