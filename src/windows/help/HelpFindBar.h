// SPDX-License-Identifier: MIT
#pragma once

#include "windows/help/HelpPart.h"
#include "windows/help/RichPage.h"
#include "windows/widgets/Window.h"

namespace dayvane::help {

/// The bar below a page that finds words in it.
class HelpFindBar : public widgets::Window {
 public:
  /// The page must outlive the bar.
  HelpFindBar(HWND parent, const widgets::SharedLook& look, RichPage& page);

  /// Shows the bar, ready to type.
  void Open();
  void Close();
  bool IsOpen() const { return m_isOpen; }

  void FindNext() { Find(&RichPage::FindNext); }
  void FindPrevious() { Find(&RichPage::FindPrevious); }

  /// The key of an underlined letter, pressed with Alt; false for any other.
  bool TakeLetter(WPARAM key);

  /// Enter, where one of the buttons has the keyboard; false elsewhere.
  bool PressFocused();

  void SetLook(const widgets::SharedLook& look);
  int WantedHeight() const;

  std::function<void()> OpenedOrClosed;  ///< the page has another room

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  using FindOne = bool (RichPage::*)(const std::wstring&) const;

  void Find(FindOne find);
  bool FindOrWrap(FindOne find, const std::wstring& words);
  void FindWhileTyping();
  void SetOpen(bool open);
  void LayOut();

  RichPage& m_page;
  widgets::SharedLook m_look;
  HelpPart m_caption;
  HelpPart m_words;
  HelpPart m_next;
  HelpPart m_previous;
  HelpPart m_notFound;
  HelpPart m_close;
  bool m_isOpen = false;
};

}  // namespace dayvane::help
