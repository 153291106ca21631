// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "windows/help/HelpPage.h"
#include "windows/help/HelpPart.h"
#include "windows/help/PictureStorage.h"

namespace dayvane::help {

/// Shows one page in the system's rich text: its text can be selected and copied, its links followed with the mouse
/// and the keyboard.
class RichPage : public HelpPart {
 public:
  RichPage(HWND parent, const widgets::SharedLook& look, DWORD moreStyle);

  /// Places the window with a margin around the page, in pixels.
  void PlaceWithMargin(const RECT& place, int margin);

  /// Shows a page on a background; it begins at its top.
  void ShowPage(const Page& page, COLORREF background);

  /// Room for a line of the page, in pixels.
  int Room() const;

  /// Height of the whole page, in pixels, the margin not counted. Its last line must be of plain text.
  int PageHeight() const;

  /// Dots per inch that the rich text takes the screen to have. Systems differ in whether it knows of its window's.
  int DotsPerInch() const { return m_dotsPerInch; }
  void SetLook(const widgets::SharedLook& look) override;

  /// How far the page is scrolled, in pixels.
  int Scrolled() const;
  void ScrollTo(int pixels) const;

  /// Selects the next place of a text, whatever the case of its letters, from the selection on or back.
  bool FindNext(const std::wstring& text) const;
  bool FindPrevious(const std::wstring& text) const;
  void Select(LONG first, LONG end) const;
  CHARRANGE Selected() const;

  /// Selects the link after or before the selection; false where there is none.
  bool SelectLink(bool backward) const;

  /// Follows the link that is selected or that the selection begins in; false where there is none.
  bool FollowSelectedLink();

  std::function<void(const std::string& topic)> LinkChosen;
  std::function<void()> Clicked;  ///< after the system has taken the click

 protected:
  std::optional<LRESULT> OnNotify(NMHDR& notice) override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  struct Link {
    CHARRANGE place;
    std::string topic;
  };

  void Load(const std::string& richText) const;
  void MarkLinks(const std::vector<PageLink>& links);
  void MeasureDots();
  bool Find(const std::wstring& text, CHARRANGE range, bool backward, CHARRANGE& found) const;
  const Link* LinkAt(LONG place) const;
  bool IsUnderlined(const CHARRANGE& range) const;

  std::vector<Link> m_links;  ///< from top to bottom
  bool m_scrolls;
  int m_margin = 0;
  int m_dotsPerInch = USER_DEFAULT_SCREEN_DPI;
};

}  // namespace dayvane::help
