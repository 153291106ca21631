// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "help/HelpFile.h"
#include "windows/help/PagePictures.h"
#include "windows/help/RichPage.h"
#include "windows/widgets/Window.h"

namespace dayvane::help {

/// A small window that explains one control, where the user asked. It goes at the next click or key, and when another
/// window gets the keyboard.
class HelpPopup : public widgets::Window {
 public:
  /// Opens at a point of the screen, moved so that all of it can be read. The file must live as long as the window;
  /// `owner`, which gets the keyboard back, may be null.
  HelpPopup(const HelpFile& file, const Topic& topic, POINT at, HWND owner);

  /// Another topic was asked for by a link in the text.
  std::function<void(const std::string& topic)> TopicChosen;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void ShowText(const HelpFile& file, const Topic& topic);
  void OpenAt(POINT at) const;
  void Close() const;

  widgets::SharedLook m_look;
  RichPage m_page;
};

}  // namespace dayvane::help
